#include "client/sources/clippings/clipping.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "client/sources/clippings/date.h"
#include "client/sources/clippings/scanning.h"
#include "client/sources/clippings/words.h"
#include "client/text/affixes.h"
#include "client/text/case_folding.h"
#include "client/text/encoding.h"

namespace client {
namespace {

namespace words = clipping_words;

using Ranges = std::vector<ClippingRange>;

// The last two are in Windows-1252.
constexpr std::array<std::string_view, 5> kDashes = {"-", "\u2013", "\u2014", "\x96",
                                                     "\x97"};

std::vector<std::string> parts(const std::string& line) {
    std::vector<std::string> result;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = line.find('|', start);
        result.push_back(line.substr(start, end - start));
    }
    return result;
}

// Returns the end of a range, which may have only the digits that differ: "170-71".
std::int64_t completed(std::int64_t last, std::size_t digits, std::int64_t first) {
    std::int64_t unit = 1;
    for (std::size_t i = 0; i < std::min(digits, std::size_t{18}); ++i) {
        unit *= 10;
    }
    return last < first ? std::max(first, first - first % unit + last) : last;
}

std::optional<NumberInText> endOfRange(const NumberInText& first) {
    const std::size_t dash = prefixLength(first.rest, kDashes);
    std::size_t at = dash;
    const auto last = dash > 0 ? nextGroupedNumber(first.rest, at) : std::nullopt;
    return last && last->offset == dash ? last : std::nullopt;
}

struct RangeInText {
    ClippingRange range;
    std::size_t offset;
    std::string_view rest;
};

std::optional<RangeInText> nextRange(std::string_view text, std::size_t& at) {
    const auto first = nextGroupedNumber(text, at);
    if (!first) {
        return std::nullopt;
    }
    RangeInText found{{first->value, first->value}, first->offset, first->rest};
    if (const auto last = endOfRange(*first)) {
        found.range.last = completed(last->value, last->digits, first->value);
        found.rest = last->rest;
        at = text.size() - last->rest.size();
    }
    return found;
}

// Returns whether the text ends with one of the words; another ending of it, or "No.", may
// follow.
template <class Words>
bool endsWithOneOf(std::string_view text, const Words& list) {
    constexpr std::size_t kLongestEnding = 24;
    const std::string_view end =
        text.substr(text.size() - std::min(text.size(), kLongestEnding));
    return std::any_of(list.begin(), list.end(), [&](std::string_view word) {
        const std::size_t at = end.rfind(word);
        const std::size_t ending = at == std::string_view::npos ? 0 : at + word.size();
        const std::string_view behind = end.substr(ending);
        return at != std::string_view::npos && behind.find(' ') == behind.find_last_of(' ');
    });
}

std::optional<ClippingKind> kindIn(const std::string& text) {
    return hasOneOf(text, words::kHighlight)  ? std::optional(ClippingKind::Highlight)
           : hasOneOf(text, words::kBookmark) ? std::optional(ClippingKind::Bookmark)
           : hasOneOf(text, words::kArticle)  ? std::optional(ClippingKind::Article)
           : hasOneOf(text, words::kNote)     ? std::optional(ClippingKind::Note)
                                              : std::nullopt;
}

// Sets the ranges that a word names, and returns the others.
Ranges takeRanges(std::string_view text, Clipping& clipping) {
    Ranges unnamed;
    for (std::size_t at = 0; const auto found = nextRange(text, at);) {
        const std::string_view before = text.substr(0, found->offset);
        if (startsWithOneOf(found->rest, words::kAfterPage) ||
            endsWithOneOf(before, words::kBeforePage)) {
            clipping.page = found->range;
        } else if (endsWithOneOf(before, words::kBeforeLocation)) {
            clipping.location = found->range;
        } else {
            unnamed.push_back(found->range);
        }
    }
    return unnamed;
}

// In an unknown language, the page is assumed to be before the location.
void guessPlaces(const Ranges& ranges, Clipping& clipping) {
    if (ranges.size() > 1) {
        clipping.page = ranges.front();
    }
    if (!ranges.empty()) {
        clipping.location = ranges.back();
    }
}

}  // namespace

std::optional<Clipping> parseDetails(std::string_view line) {
    constexpr std::size_t kLongest = 4096;  // for folding, which needs much memory
    line = withoutSpaces(line).substr(0, kLongest);
    const std::size_t dash = prefixLength(line, kDashes);
    if (dash == 0) {
        return std::nullopt;
    }
    std::vector<std::string> rest = parts(caseFoldedNfkc(lineAsUtf8(line.substr(dash))));
    Clipping clipping;
    if (const auto date = parseClippingDate(rest.back())) {
        clipping.note.time = *date;
        const bool isKorean =
            rest.back().find(words::kAfterKoreanMonth) != std::string::npos;
        clipping.identityTime = isKorean ? 0 : *date;
        rest.pop_back();
    }
    Ranges unnamed;
    for (const std::string& part : rest) {
        const bool mayBeDate = rest.size() > 1 && &part == &rest.back();
        clipping.kind = clipping.kind ? clipping.kind : kindIn(part);
        const Ranges here = takeRanges(part, clipping);
        unnamed.insert(unnamed.end(), here.begin(), mayBeDate ? here.begin() : here.end());
    }
    if (!clipping.page && !clipping.location && !clipping.kind) {
        guessPlaces(unnamed, clipping);
    }
    return clipping;
}

bool isDetails(std::string_view line) {
    const auto clipping = parseDetails(line);
    return clipping && clipping->kind &&
           (clipping->page || clipping->location || clipping->note.time != 0);
}

}  // namespace client
