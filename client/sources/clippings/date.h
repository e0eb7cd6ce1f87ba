// The date of a clipping, as readers of many languages write it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace client {

// Returns the reader's local time, as if it were UTC, in seconds since the Unix epoch;
// nullopt if there is no date, or none of the calendar. `text` is folded by caseFoldedNfkc.
std::optional<std::int64_t> parseClippingDate(const std::string& text);

}  // namespace client
