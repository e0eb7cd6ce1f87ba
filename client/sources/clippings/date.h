// When a clipping was made, as readers of many languages write it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

// The reader's local time, as if it were UTC, in seconds since the Unix epoch. `text` is
// compatibly folded. Nothing when it has no date that can be read.
std::optional<std::int64_t> parseClippingDate(const std::string& text);
