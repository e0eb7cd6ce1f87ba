// The Gregorian calendar, and times in the format of ISO 8601.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace client {

struct Date {
    std::int64_t year;
    std::int64_t month;  // 1 to 12
    std::int64_t day;    // 1 to 31
};

// Returns the days from 1 January 1970 to the date; nullopt if there is no such date.
std::optional<std::int64_t> daysSinceEpoch(const Date& date);

// Returns the seconds since the Unix epoch of a date ("2026-03-07": its first second) or of
// a date and time ("2026-03-07T09:05", with seconds or without, a space for the T): in UTC
// unless a zone follows ("Z", "+01:00", "+0100", "+01"). Parts of a second are dropped.
// nullopt if the text has another form, or there is no such date.
std::optional<std::int64_t> parseIsoTime(std::string_view text);

// Returns the time in UTC, such as "2026-03-07T09:05:00Z". Years before 0 and after 9999
// have a sign.
std::string isoTime(std::int64_t seconds);

}  // namespace client
