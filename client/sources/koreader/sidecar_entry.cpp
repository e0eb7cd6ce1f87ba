#include "client/sources/koreader/sidecar_entry.h"

#include <cmath>
#include <cstddef>
#include <utility>

#include "client/text/ascii.h"
#include "client/text/iso_time.h"
#include "client/text/numbers.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

std::string textOf(const JsonValue& entry, const char* name) {
    return std::string(textIn(memberOf(entry, name)));
}

std::int64_t timeOf(const JsonValue& entry, const char* name) {
    return parseIsoTime(textIn(memberOf(entry, name))).value_or(0);
}

// Names grey as other sources do.
std::string colorOf(const JsonValue& entry) {
    const std::string color = asciiLowered(textIn(memberOf(entry, "color")));
    return color == "gray" ? "grey" : color;
}

// Returns a flowing book's position, or the whole numbers of page, y and x.
std::string positionOf(const JsonValue& entry, std::optional<double> page) {
    const JsonValue& start = memberOf(entry, "pos0");
    for (const JsonValue* text : {&start, &memberOf(entry, "page")}) {
        if (text->IsString()) {
            return std::string(textIn(*text));
        }
    }
    const auto ownPage = numberIn(memberOf(start, "page"));
    std::string position;
    for (const auto& number : {ownPage ? ownPage : page, numberIn(memberOf(start, "y")),
                               numberIn(memberOf(start, "x"))}) {
        position += number ? ' ' + decimal(std::floor(*number)) : "";
    }
    return position;
}

// Returns the position's numbers, without those in the names of elements. A step without a
// number is the first of its kind: text()[2] is after text().
std::string orderOf(const std::string& position) {
    constexpr std::size_t kMax = 1000;  // real ones are shorter
    std::string numbered;
    bool isName = false;
    for (const char letter : position.substr(0, kMax)) {
        isName = isAsciiLetter(letter) || (isName && isAsciiDigit(letter));
        if (isName) {
            continue;
        }
        const bool isEnd = (letter == '/' || letter == '.') && !numbered.empty();
        numbered += isEnd && numbered.back() != ']' ? "[1]" : "";
        numbered += letter;
    }
    const std::string keys = sortKeyOfNumbers(numbered);
    return keys.empty() ? "" : 'o' + keys;
}

}  // namespace

std::optional<SidecarEntry> parseEntry(const JsonValue& json, const SidecarTexts& texts,
                                       std::optional<double> pageOfList) {
    Note note;
    for (const auto& page : {numberIn(memberOf(json, "pageno")),
                             numberIn(memberOf(json, "page")), pageOfList}) {
        note.place.page = note.place.page ? note.place.page : page;
    }
    std::string position = positionOf(json, note.place.page);
    const bool hasStart = !memberOf(json, "pos0").IsNull();
    const bool isPassage = pageOfList || hasStart || !memberOf(json, "drawer").IsNull();
    note.text = isPassage ? textOf(json, texts.passage) : "";  // a bookmark's is made up
    if (position.empty() || (pageOfList && !hasStart && note.text.empty())) {
        return std::nullopt;
    }
    note.place.chapter = textOf(json, "chapter");
    note.place.order = orderOf(position);
    note.color = colorOf(json);
    note.comment = textOf(json, texts.comment);
    note.time = timeOf(json, "datetime");
    note.changeTime = timeOf(json, "datetime_updated");
    note.commentTime = note.changeTime;
    return SidecarEntry{std::move(note), std::move(position), textOf(json, "datetime"),
                        isPassage};
}

}  // namespace client
