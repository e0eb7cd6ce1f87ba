// Numbers and words in a line.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "client/text/affixes.h"

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

template <class Words>
bool hasOneOf(std::string_view text, const Words& words) {
    return std::any_of(words.begin(), words.end(), [text](std::string_view word) {
        return text.find(word) != std::string_view::npos;
    });
}

// Spaces before the word do not count.
template <class Words>
bool startsWithOneOf(std::string_view text, const Words& words) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return prefixLength(text, words) > 0;
}

}  // namespace client
