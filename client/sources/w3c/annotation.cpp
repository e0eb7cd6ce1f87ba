#include "client/sources/w3c/annotation.h"

#include <cmath>
#include <string_view>

#include "client/sources/w3c/canonical_json.h"
#include "client/sources/w3c/color.h"
#include "client/sources/w3c/json_ld.h"
#include "client/text/affixes.h"
#include "client/text/iso_time.h"
#include "client/text/line_breaks.h"
#include "client/text/numbers.h"

namespace client {
namespace {

// Limits the stack for hostile files, whose selectors may be nested deeply.
constexpr int kMaxNested = 16;

std::string quoteIn(const JsonValue& selectors, int depth = 0) {
    for (const JsonValue* selector : elementsOf(selectors)) {
        const bool isQuote = textOf(memberOf(*selector, "type")) == "TextQuoteSelector";
        std::string quote = isQuote ? textOf(memberOf(*selector, "exact")) : "";
        if (quote.empty() && depth < kMaxNested) {
            quote = quoteIn(memberOf(*selector, "refinedBy"), depth + 1);
        }
        if (!quote.empty()) {
            return quote;
        }
    }
    return {};
}

// Returns nullopt if the label is not a number, such as "XI".
std::optional<double> pageIn(const JsonValue& label) {
    const auto page =
        label.IsNumber() ? label.GetDouble() : parseNumber<double>(textOf(label));
    return page && std::isfinite(*page) ? page : std::nullopt;
}

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

std::string sourceOf(const JsonValue& target) {
    const JsonValue& source = memberOf(target, "source");
    const std::string name = source.IsString() ? textOf(source) : "";
    return name.empty() ? textOf(memberOf(source, "id")) : name;
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
    const auto targets = elementsOf(memberOf(json, "target"));
    if (targets.empty()) {
        return std::nullopt;
    }
    const JsonValue& target = *targets.front();
    Annotation annotation;
    annotation.source = target.IsString() ? textOf(target) : sourceOf(target);
    Note& note = annotation.note;
    note.uuid = withoutPrefix(textOf(memberOf(json, "id")), "urn:uuid:");
    const JsonValue& selector = memberOf(target, "selector");
    note.text = quoteIn(selector);
    note.place.page = pageIn(memberOf(memberOf(target, "meta"), "page"));
    const std::int64_t created = timeIn(json, "created").value_or(0);
    note.time = timeIn(json, "modified").value_or(created);
    takeBodies(memberOf(json, "body"), note);
    if (note.uuid.empty()) {
        identify(annotation, canonicalJson(selector), created);
    }
    return annotation;
}

}  // namespace client
