// Numbers in a text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace client {

struct NumberInText {
    std::int64_t value;     // at most 18 digits of it
    std::size_t digits;     // how many it has
    std::size_t offset;     // of its first digit
    char before;            // the byte before it; 0 at the start of the text
    std::string_view rest;  // the text behind it
};

// Returns the next number from `at` on, and moves `at` to its end.
std::optional<NumberInText> nextNumber(std::string_view text, std::size_t& at);

}  // namespace client
