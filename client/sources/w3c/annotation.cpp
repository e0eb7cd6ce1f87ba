#include "client/sources/w3c/annotation.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "client/sources/w3c/color.h"
#include "client/text/iso_time.h"

namespace {

// Selectors may be nested, in a file made to be slow without end.
constexpr int kMostNested = 16;

std::string quoteIn(const JsonValue& selectors, int depth = 0) {
    for (const JsonValue* selector : elementsOf(selectors)) {
        const bool isQuote = textOf(memberOf(*selector, "type")) == "TextQuoteSelector";
        std::string quote = isQuote ? textOf(memberOf(*selector, "exact")) : "";
        if (quote.empty() && depth < kMostNested) {
            quote = quoteIn(memberOf(*selector, "refinedBy"), depth + 1);
        }
        if (!quote.empty()) {
            return quote;
        }
    }
    return {};
}

// A label such as "XI" is no number.
std::optional<double> pageIn(const JsonValue& label) {
    double page = 0;
    if (label.IsNumber()) {
        page = label.GetDouble();
    } else {
        const std::string text = textOf(label);
        const char* const end = text.data() + text.size();
        const auto parsed = std::from_chars(text.data(), end, page);
        if (text.empty() || parsed.ec != std::errc() || parsed.ptr != end) {
            return std::nullopt;
        }
    }
    return std::isfinite(page) ? std::optional(page) : std::nullopt;
}

std::int64_t timeIn(const JsonValue& json) {
    for (const char* name : {"modified", "created"}) {
        if (const auto time = parseIsoTime(textOf(memberOf(json, name)))) {
            return *time;
        }
    }
    return 0;
}

std::string withoutPrefix(const std::string& text, std::string_view prefix) {
    return text.compare(0, prefix.size(), prefix) == 0 ? text.substr(prefix.size()) : text;
}

void addComment(SourceNote& note, const std::string& comment) {
    if (!note.comment.empty() && !comment.empty()) {
        note.comment += "\u2029";  // PARAGRAPH SEPARATOR
    }
    note.comment += comment;
}

void takeBodies(const JsonValue& bodies, SourceNote& note) {
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
    SourceNote& note = annotation.note;
    note.uuid = withoutPrefix(textOf(memberOf(json, "id")), "urn:uuid:");
    note.text = quoteIn(memberOf(target, "selector"));
    note.page = pageIn(memberOf(memberOf(target, "meta"), "page"));
    note.timestamp = timeIn(json);
    takeBodies(memberOf(json, "body"), note);
    return annotation;
}
