// The Gregorian calendar, for any year.
#pragma once

#include <cstdint>
#include <optional>

namespace client {

struct Date {
    std::int64_t year;
    std::int64_t month;  // 1 to 12
    std::int64_t day;    // 1 to 31
};

// Returns the days from 1 January 1970 to the date; nullopt if the calendar lacks it.
std::optional<std::int64_t> daysSinceEpoch(const Date& date);

Date dateOf(std::int64_t daysFromEpoch);

}  // namespace client
