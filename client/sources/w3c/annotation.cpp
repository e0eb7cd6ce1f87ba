#include "client/sources/w3c/annotation.h"

#include <cmath>
#include <string_view>

#include "client/sources/w3c/color.h"
#include "client/text/affixes.h"
#include "client/text/iso_time.h"
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

std::int64_t timeIn(const JsonValue& json) {
    for (const char* name : {"modified", "created"}) {
        if (const auto time = parseIsoTime(textOf(memberOf(json, name)))) {
            return *time;
        }
    }
    return 0;
}

void addComment(Note& note, const std::string& comment) {
    if (!note.comment.empty() && !comment.empty()) {
        note.comment += "\u2029";  // PARAGRAPH SEPARATOR
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
    note.text = quoteIn(memberOf(target, "selector"));
    note.page = pageIn(memberOf(memberOf(target, "meta"), "page"));
    note.time = timeIn(json);
    takeBodies(memberOf(json, "body"), note);
    return annotation;
}

}  // namespace client
