#include "client/sources/w3c/target.h"

#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "client/sources/w3c/json_ld.h"
#include "client/text/affixes.h"
#include "client/text/numbers.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

// Returns the first text that `find` returns for a selector and is not empty.
template <class Find>
std::string firstIn(const JsonValue& selectors, const Find& find) {
    for (const JsonValue* selector : elementsOf(selectors)) {
        std::string found = find(*selector);
        if (found.empty()) {
            found = firstIn(memberOf(*selector, "refinedBy"), find);
        }
        if (!found.empty()) {
            return found;
        }
    }
    return {};
}

// Returns the number, also of a text; nullopt for one such as "XI".
std::optional<double> numericIn(const JsonValue& value) {
    const auto number =
        value.IsNumber() ? numberIn(value) : parseNumber<double>(textOf(value));
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::string textOfHeading(const JsonValue& heading) {
    for (const char* name : {"txt", "title", "text", "name"}) {
        if (std::string text = textOf(memberOf(heading, name)); !text.empty()) {
            return text;
        }
    }
    return textOf(heading);
}

// Returns the last of the headings, because they start with the outermost.
std::string chapterIn(const JsonValue& headings) {
    std::string chapter;
    for (const JsonValue* heading : elementsOf(headings)) {
        if (std::string text = textOfHeading(*heading); !text.empty()) {
            chapter = std::move(text);
        }
    }
    return chapter;
}

// Returns the first two of the parts of a range, which are its base and its start.
std::string startOf(std::string_view cfi) {
    std::string start;
    bool isInBrackets = false;
    int commas = 0;
    for (std::size_t i = 0; i < cfi.size() && commas < 2; ++i) {
        const char letter = cfi[i];
        i += letter == '^' ? 1 : 0;  // escapes the next character
        isInBrackets = letter == '[' || (isInBrackets && letter != ']');
        start += isInBrackets || letter == '^' ? "" : std::string(1, letter);
        commas += !isInBrackets && letter == ',' ? 1 : 0;
    }
    return start;
}

}  // namespace

const JsonValue& targetOf(const JsonValue& annotation) {
    const JsonValue& targets = memberOf(annotation, "target");
    return targets.IsArray() && !targets.Empty() ? targets[0] : targets;
}

std::string sourceOf(const JsonValue& target) {
    const JsonValue& source = target.IsString() ? target : memberOf(target, "source");
    return source.IsString() ? textOf(source) : textOf(memberOf(source, "id"));
}

std::string quoteIn(const JsonValue& target) {
    return firstIn(memberOf(target, "selector"), [](const JsonValue& selector) {
        const bool isQuote = textOf(memberOf(selector, "type")) == "TextQuoteSelector";
        return isQuote ? textOf(memberOf(selector, "exact")) : "";
    });
}

Place placeIn(const JsonValue& target) {
    const JsonValue& meta = memberOf(target, "meta");
    Place place;
    place.page = numericIn(memberOf(meta, "page"));
    place.chapter = chapterIn(memberOf(meta, "headings"));
    return place;
}

std::string cfiIn(const JsonValue& target) {
    return firstIn(memberOf(target, "selector"), [](const JsonValue& selector) {
        const std::string value = textOf(memberOf(selector, "value"));
        const std::size_t found = value.find("epubcfi(");
        return found == std::string::npos ? ""
                                          : startOf(std::string_view(value).substr(found));
    });
}

std::string progressionIn(const JsonValue& target) {
    const auto keyOf = [](const std::optional<double>& fraction) {
        return fraction ? sortKeyOfFraction(*fraction) : "";
    };
    const std::string key =
        firstIn(memberOf(target, "selector"), [&](const JsonValue& selector) {
            const JsonValue& value = memberOf(selector, "value");
            const std::string text = textOf(value);
            constexpr std::string_view kFragment = "progression=";
            return startsWith(text, kFragment)
                       ? keyOf(parseNumber<double>(withoutPrefix(text, kFragment)))
                   : textOf(memberOf(selector, "type")) == "ProgressionSelector"
                       ? keyOf(numericIn(value))
                       : "";
        });
    return key.empty() ? keyOf(numericIn(memberOf(memberOf(target, "meta"), "progression")))
                       : key;
}

}  // namespace client
