// Numbers, words and spaces in a line.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "client/text/affixes.h"

namespace client {

// With the byte order mark, which some readers write before each record.
inline constexpr std::array<std::string_view, 7> kSpaces = {
    " ", "\t", "\r", "\n", "\u00a0", "\u3000", "\ufeff"};

inline std::string_view withoutSpaces(std::string_view text) {
    return trimmed(text, kSpaces);
}

struct NumberInText {
    std::int64_t value;     // of its first 18 digits
    std::size_t digits;     // number of its digits
    std::size_t offset;     // of its first digit
    char before;            // the byte before it; 0 at the start of the text
    std::string_view rest;  // the text after it
};

// Returns the next number at or after `at`, and moves `at` to its end.
std::optional<NumberInText> nextNumber(std::string_view text, std::size_t& at);

// Also takes groups of three digits after commas or full stops for a part of the number.
std::optional<NumberInText> nextGroupedNumber(std::string_view text, std::size_t& at);

template <class Words>
bool hasOneOf(std::string_view text, const Words& words) {
    return std::any_of(words.begin(), words.end(), [text](std::string_view word) {
        return text.find(word) != std::string_view::npos;
    });
}

// Skips spaces before the word.
template <class Words>
bool startsWithOneOf(std::string_view text, const Words& words) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return prefixLength(text, words) > 0;
}

}  // namespace client
