#include "client/sources/w3c/annotation.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/target.h"
#include "client/text/annotation_id.h"
#include "client/text/iso_time.h"
#include "client/text/line_breaks.h"
#include "client/text/numbers.h"

namespace client {
namespace {

struct Color {
    const char* name;
    int value;  // 0xrrggbb
};

constexpr std::array<Color, 9> kColors = {{{"yellow", 0xffe400},
                                           {"orange", 0xff9a00},
                                           {"red", 0xe02020},
                                           {"pink", 0xff8fc8},
                                           {"purple", 0x9b59d0},
                                           {"blue", 0x4a90e2},
                                           {"cyan", 0x30c8d8},
                                           {"green", 0x5fc35f},
                                           {"grey", 0x9a9a9a}}};

int distance(int one, int other) {
    int sum = 0;
    for (const int shift : {16, 8, 0}) {
        const int difference = (one >> shift & 0xff) - (other >> shift & 0xff);
        sum += difference * difference;
    }
    return sum;
}

// Returns the name of the named colour nearest to "#rrggbb"; other texts unchanged.
std::string colorNamed(const std::string& text) {
    const auto value = text.size() == 7 && text[0] == '#'
                           ? parseNumber<unsigned>(std::string_view(text).substr(1), 16)
                           : std::nullopt;
    if (!value) {
        return text;
    }
    return std::min_element(
               kColors.begin(), kColors.end(),
               [color = static_cast<int>(*value)](const Color& one, const Color& other) {
                   return distance(one.value, color) < distance(other.value, color);
               })
        ->name;
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
