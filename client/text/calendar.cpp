#include "client/text/calendar.h"

namespace client {
namespace {

constexpr std::int64_t kDaysAnEra = 146097;  // 400 years, after which the calendar repeats
constexpr std::int64_t kDaysToEpoch = 719468;  // from 1 March of the year 0

// The quotient towards negative infinity, so that times before the epoch come out right.
std::int64_t floorDivided(std::int64_t number, std::int64_t by) {
    return number / by - (number % by < 0 ? 1 : 0);
}

// Years that begin in March have the day that leap years add at their end. A day that its
// month lacks is counted as one of the next month.
std::int64_t countDays(const Date& date) {
    const std::int64_t year = date.year - (date.month <= 2 ? 1 : 0);
    const std::int64_t era = floorDivided(year, 400);
    const std::int64_t yearOfEra = year - era * 400;
    const std::int64_t monthFromMarch = (date.month + 9) % 12;
    const std::int64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    return era * kDaysAnEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 +
           dayOfYear - kDaysToEpoch;
}

}  // namespace

std::optional<std::int64_t> daysSinceEpoch(const Date& date) {
    const bool isInYear = 1 <= date.month && date.month <= 12 && 1 <= date.day;
    const std::int64_t days = isInYear ? countDays(date) : 0;
    const bool exists =
        isInYear && dateOf(days).month == date.month && dateOf(days).day == date.day;
    return exists ? std::optional(days) : std::nullopt;
}

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

}  // namespace client
