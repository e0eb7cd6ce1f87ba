#include "client/sources/clippings/date.h"

#include <string_view>
#include <unordered_map>

#include "client/sources/clippings/scanning.h"
#include "client/sources/clippings/words.h"
#include "client/text/iso_time.h"

namespace client {
namespace {

namespace words = clipping_words;

using Months = std::unordered_map<std::string_view, int>;

Months monthsByName() {
    Months months;
    int number = 0;
    for (std::string_view names : words::kMonths) {
        ++number;
        while (!names.empty()) {
            const std::size_t length = names.find(' ');
            months.emplace(names.substr(0, length), number);
            names.remove_prefix(length == std::string_view::npos ? names.size()
                                                                 : length + 1);
        }
    }
    return months;
}

// Returns 0 if the text names no month.
int monthNamedIn(std::string_view text) {
    static const Months kMonths = monthsByName();
    constexpr std::string_view kAround = " .,:;0123456789";
    while (!text.empty()) {
        const std::size_t length = std::min(text.find_first_of(kAround), text.size());
        if (const auto month = kMonths.find(text.substr(0, length));
            month != kMonths.end()) {
            return month->second;
        }
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return 0;
}

// A date and a time, filled in number by number.
struct Moment {
    std::int64_t year = -1;
    std::int64_t month = 0;
    std::int64_t day = 0;
    std::int64_t seconds = 0;
    int partsOfTime = 0;  // number of hours, minutes, seconds read
    std::string_view afterTime = {};
};

void addNumber(Moment& moment, const NumberInText& number) {
    constexpr std::int64_t kFactors[] = {3600, 60, 1};
    const bool isTime =
        startsWith(number.rest, ":") || (moment.partsOfTime > 0 && number.before == ':');
    if (isTime && number.digits <= 2 && moment.partsOfTime < 3) {
        moment.seconds += number.value * kFactors[moment.partsOfTime++];
        moment.afterTime = number.rest;
    } else if (number.digits == 4 && moment.year < 0) {
        moment.year = number.value;
    } else if (prefixLength(number.rest, words::kAfterMonth) > 0) {
        moment.month = number.value;
    } else if (number.digits <= 2 && moment.day == 0) {
        moment.day = number.value;
    }
}

std::int64_t secondsOfDay(const Moment& moment, std::string_view text) {
    constexpr std::int64_t kHour = 3600;
    constexpr std::int64_t kNoon = 12 * kHour;
    if (moment.seconds < kNoon && (startsWithOneOf(moment.afterTime, words::kPm) ||
                                   hasOneOf(text, words::kAfternoon))) {
        return moment.seconds + kNoon;
    }
    if (moment.seconds >= kNoon && moment.seconds < kNoon + kHour &&
        (startsWithOneOf(moment.afterTime, words::kAm) ||
         hasOneOf(text, words::kMorning))) {
        return moment.seconds - kNoon;
    }
    return moment.seconds;
}

}  // namespace

std::optional<std::int64_t> parseClippingDate(const std::string& text) {
    Moment moment;
    for (std::size_t at = 0; const auto number = nextNumber(text, at);) {
        addNumber(moment, *number);
    }
    if (moment.month == 0) {
        moment.month = monthNamedIn(text);
    }
    constexpr std::int64_t kDay = 86400;
    const auto days = daysSinceEpoch({moment.year, moment.month, moment.day});
    return moment.year < 0 || !days
               ? std::nullopt
               : std::optional(*days * kDay + secondsOfDay(moment, text) % kDay);
}

}  // namespace client
