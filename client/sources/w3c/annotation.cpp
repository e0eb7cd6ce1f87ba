#include "client/sources/w3c/annotation.h"

#include "client/sources/w3c/canonical_json.h"
#include "client/sources/w3c/color.h"
#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/target.h"
#include "client/text/annotation_id.h"
#include "client/text/iso_time.h"
#include "client/text/line_breaks.h"

namespace client {
namespace {

std::optional<std::int64_t> timeIn(const JsonValue& json, const char* name) {
    return parseIsoTime(textOf(memberOf(json, name)));
}

void addComment(Note& note, const std::string& comment) {
    if (!note.comment.empty() && !comment.empty()) {
        note.comment += kParagraphEnd;
    }
    note.comment += comment;
}

void takeBodies(const JsonValue& bodies, Note& note) {
    for (const JsonValue* body : elementsOf(bodies)) {
        addComment(note, body->IsString() ? "" : textOf(memberOf(*body, "value")));
        const std::string color = colorNamed(textOf(memberOf(*body, "color")));
        note.color = color.empty() ? note.color : color;
    }
}

// Uses what stays when the user edits the comment or the colour. Version 1.1 used the text
// and the time of the last change.
void identify(Annotation& annotation, const std::string& selector, std::int64_t created) {
    const Note& note = annotation.note;
    const std::string creation = std::to_string(created);
    annotation.identity = {annotation.source, selector, creation};
    annotation.formerIdentities = {{note.text, std::to_string(note.time)}};
    if (note.time != created) {
        annotation.formerIdentities.push_back({note.text, creation});
    }
}

}  // namespace

std::optional<Annotation> parseAnnotation(const JsonValue& json) {
    const JsonValue& target = targetOf(json);
    if (target.IsNull() || target.IsArray()) {
        return std::nullopt;
    }
    Annotation annotation;
    annotation.source = sourceOf(target);
    Note& note = annotation.note;
    note.uuid = uuidOfAnnotation(textOf(memberOf(json, "id")));
    note.text = quoteIn(target);
    note.place = placeIn(target);
    const std::int64_t created = timeIn(json, "created").value_or(0);
    note.time = timeIn(json, "modified").value_or(created);
    takeBodies(memberOf(json, "body"), note);
    if (note.uuid.empty()) {
        identify(annotation, canonicalJson(memberOf(target, "selector")), created);
    }
    return annotation;
}

}  // namespace client
