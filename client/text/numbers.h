// Numbers as text, whatever the locale.
#pragma once

#include <charconv>
#include <limits>
#include <string>

// The shortest decimal text without an exponent that reads back as `number`.
inline std::string decimal(double number) {
    char digits[std::numeric_limits<double>::max_exponent10 + 400];
    char* end =
        std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed).ptr;
    return {digits, end};
}
