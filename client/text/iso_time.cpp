#include "client/text/iso_time.h"

#include <algorithm>
#include <cstddef>

#include "client/text/ascii.h"

namespace client {
namespace {

constexpr std::int64_t kDaysAnEra = 146097;  // 400 years, after which the calendar repeats
constexpr std::int64_t kDaysToEpoch = 719468;  // from 1 March of the year 0

// Rounds towards negative infinity, which is correct for times before the epoch too.
std::int64_t floorDivided(std::int64_t number, std::int64_t by) {
    return number / by - (number % by < 0 ? 1 : 0);
}

// Counts years from March, so that a leap day is the last day of its year. A day beyond the
// end of its month counts as one of the next month.
std::int64_t countDays(const Date& date) {
    const std::int64_t year = date.year - (date.month <= 2 ? 1 : 0);
    const std::int64_t era = floorDivided(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t monthFromMarch = (date.month + 9) % 12;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    return era * kDaysAnEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 +
           dayOfYear - kDaysToEpoch;
}

constexpr std::int64_t kSecondsADay = 86400;

Date dateOf(std::int64_t daysFromEpoch) {
    const std::int64_t days = daysFromEpoch + kDaysToEpoch;
    const std::int64_t era = floorDivided(days, kDaysAnEra);
    const std::int64_t dayOfEra = days - era * kDaysAnEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::int64_t dayOfYear =
        dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t monthFromMarch = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = (monthFromMarch + 2) % 12 + 1;
    return {yearOfEra + era * 400 + (month <= 2 ? 1 : 0), month,
            dayOfYear - (153 * monthFromMarch + 2) / 5 + 1};
}

// Reads parts from the front of the text. After a failure, its results are unspecified.
class Parser {
public:
    explicit Parser(std::string_view text) : rest_(text) {}

    bool failed() const { return failed_; }
    bool atEnd() const { return rest_.empty(); }
    bool isNext(std::string_view letters) const {
        return !atEnd() && letters.find(rest_[0]) != std::string_view::npos;
    }
    bool skip(std::string_view letters);
    void fail() { failed_ = true; }
    void expect(std::string_view letters) { failed_ |= !skip(letters); }
    std::int64_t number(std::size_t digits, std::int64_t least, std::int64_t most);
    void skipDigits();

private:
    std::string_view rest_;
    bool failed_ = false;
};

bool Parser::skip(std::string_view letters) {
    const bool isThere = isNext(letters);
    rest_.remove_prefix(isThere ? 1 : 0);
    return isThere;
}

std::int64_t Parser::number(std::size_t digits, std::int64_t least, std::int64_t most) {
    std::int64_t value = 0;
    for (std::size_t i = 0; i < digits; ++i) {
        failed_ |= atEnd() || !isAsciiDigit(rest_[0]);
        value = failed_ ? 0 : value * 10 + (rest_[0] - '0');
        rest_.remove_prefix(failed_ ? 0 : 1);
    }
    failed_ |= value < least || value > most;
    return value;
}

void Parser::skipDigits() {
    while (!atEnd() && isAsciiDigit(rest_[0])) {
        rest_.remove_prefix(1);
    }
}

std::int64_t parseDate(Parser& text) {
    const std::int64_t year = text.number(4, 0, 9999);
    text.expect("-");
    const std::int64_t month = text.number(2, 1, 12);
    text.expect("-");
    const std::int64_t day = text.number(2, 1, 31);
    const auto days = daysSinceEpoch({year, month, day});
    if (!days) {
        text.fail();
    }
    return days.value_or(0) * kSecondsADay;
}

std::int64_t parseTimeOfDay(Parser& text) {
    std::int64_t seconds = text.number(2, 0, 23) * 3600;
    text.expect(":");
    seconds += text.number(2, 0, 59) * 60;
    if (text.skip(":")) {
        seconds += text.number(2, 0, 60);
        if (text.skip(".,")) {
            text.number(1, 0, 9);
            text.skipDigits();
        }
    }
    return seconds;
}

// Returns the seconds that the zone is ahead of UTC.
std::int64_t parseZone(Parser& text) {
    if (text.skip("Zz") || text.atEnd()) {
        return 0;
    }
    const std::int64_t sign = text.isNext("-") ? -1 : 1;
    text.expect("+-");
    std::int64_t seconds = text.number(2, 0, 23) * 3600;
    if (text.skip(":") || !text.atEnd()) {
        seconds += text.number(2, 0, 59) * 60;
    }
    return sign * seconds;
}

std::string padded(std::int64_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

// Returns the year, with a sign unless it has four digits, as ISO 8601 requires.
std::string yearText(std::int64_t year) {
    if (year >= 0 && year <= 9999) {
        return padded(year, 4);
    }
    return (year < 0 ? "-" : "+") + padded(year < 0 ? -year : year, 4);
}

}  // namespace

std::optional<std::int64_t> daysSinceEpoch(const Date& date) {
    const bool isInYear = 1 <= date.month && date.month <= 12 && 1 <= date.day;
    const std::int64_t days = isInYear ? countDays(date) : 0;
    const bool exists =
        isInYear && dateOf(days).month == date.month && dateOf(days).day == date.day;
    return exists ? std::optional(days) : std::nullopt;
}

std::optional<std::int64_t> parseIsoTime(std::string_view text) {
    Parser parser(text);
    std::int64_t seconds = parseDate(parser);
    if (!parser.atEnd()) {
        parser.expect("Tt ");
        seconds += parseTimeOfDay(parser);
        seconds -= parseZone(parser);
    }
    return parser.failed() || !parser.atEnd() ? std::nullopt : std::optional(seconds);
}

std::string isoTime(std::int64_t seconds) {
    const std::int64_t rest = seconds % kSecondsADay;  // negative before the epoch
    const std::int64_t time = rest < 0 ? rest + kSecondsADay : rest;
    const Date date = dateOf(seconds / kSecondsADay - (rest < 0 ? 1 : 0));
    return yearText(date.year) + '-' + padded(date.month, 2) + '-' + padded(date.day, 2) +
           'T' + padded(time / 3600, 2) + ':' + padded(time / 60 % 60, 2) + ':' +
           padded(time % 60, 2) + 'Z';
}

}  // namespace client
