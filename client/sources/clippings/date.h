// The date of a clipping, in many languages.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace client {

// Returns the reader's local time, as if it were UTC, in seconds since the Unix epoch;
// nullopt if there is no valid date. `text` is folded by caseFoldedNfkc.
std::optional<std::int64_t> parseClippingDate(const std::string& text);

}  // namespace client
