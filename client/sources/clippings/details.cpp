#include "client/sources/clippings/details.h"

#include <algorithm>
#include <string>
#include <vector>

#include "client/sources/clippings/date.h"
#include "client/sources/clippings/matching.h"
#include "client/sources/clippings/numbers.h"
#include "client/sources/clippings/words.h"
#include "client/text/case_folding.h"

namespace {

namespace words = clipping_words;

using Ranges = std::vector<ClippingRange>;

std::vector<std::string> parts(const std::string& line) {
    std::vector<std::string> result;
    std::size_t start = 0;
    for (std::size_t end = 0; end != std::string::npos; start = end + 1) {
        end = line.find('|', start);
        result.push_back(line.substr(start, end - start));
    }
    return result;
}

// The end of a range may name only the digits that differ: "170-71".
std::int64_t completed(std::int64_t last, std::size_t digits, std::int64_t first) {
    std::int64_t unit = 1;
    for (std::size_t i = 0; i < std::min(digits, std::size_t{18}); ++i) {
        unit *= 10;
    }
    return last < first ? std::max(first, first - first % unit + last) : last;
}

std::optional<NumberInText> endOfRange(const NumberInText& first) {
    for (const std::string_view dash : {"-", "\u2013", "\u2014"}) {
        if (first.rest.substr(0, dash.size()) == dash) {
            std::size_t at = dash.size();
            const auto last = nextNumber(first.rest, at);
            return last && last->place == dash.size() ? last : std::nullopt;
        }
    }
    return std::nullopt;
}

struct RangeInText {
    ClippingRange range;
    std::size_t place;
    std::string_view rest;
};

std::optional<RangeInText> nextRange(std::string_view text, std::size_t& at) {
    const auto first = nextNumber(text, at);
    if (!first) {
        return std::nullopt;
    }
    RangeInText found{{first->value, first->value}, first->place, first->rest};
    if (const auto last = endOfRange(*first)) {
        found.range.last = completed(last->value, last->digits, first->value);
        found.rest = last->rest;
        at = text.size() - last->rest.size();
    }
    return found;
}

// Whether the text ends in the word, with another ending of it or "No." behind.
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

void takeRanges(const std::string& part, ClippingDetails& details, Ranges& unnamed) {
    const std::string_view text(part);
    for (std::size_t at = 0; const auto found = nextRange(text, at);) {
        const std::string_view before = text.substr(0, found->place);
        if (startsWithOneOf(found->rest, words::kAfterPage) ||
            endsWithOneOf(before, words::kBeforePage)) {
            details.page = found->range;
        } else if (endsWithOneOf(before, words::kBeforeLocation)) {
            details.location = found->range;
        } else {
            unnamed.push_back(found->range);
        }
    }
}

// In a language that is not known, the page stands before the location.
void guessPlaces(const Ranges& ranges, ClippingDetails& details) {
    if (ranges.size() > 1) {
        details.page = ranges.front();
    }
    if (!ranges.empty()) {
        details.location = ranges.back();
    }
}

}  // namespace

std::optional<ClippingDetails> parseDetails(std::string_view line) {
    if (line.substr(0, 1) != "-") {
        return std::nullopt;
    }
    std::vector<std::string> rest = parts(compatiblyFolded(std::string(line.substr(1))));
    ClippingDetails details;
    if (const auto date = parseClippingDate(rest.back())) {
        details.timestamp = *date;
        rest.pop_back();
    }
    Ranges unnamed;
    for (const std::string& part : rest) {
        const bool mayBeDate = rest.size() > 1 && &part == &rest.back();
        Ranges ignored;
        details.kind = details.kind ? details.kind : kindIn(part);
        takeRanges(part, details, mayBeDate ? ignored : unnamed);
    }
    if (!details.page && !details.location && !details.kind) {
        guessPlaces(unnamed, details);
    }
    return details;
}
