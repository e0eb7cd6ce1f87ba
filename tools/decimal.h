// Numbers as text, whatever the locale.
#pragma once

#include <charconv>
#include <string>

// The shortest text that reads back as `number`.
inline std::string decimal(double number) {
    char digits[32];
    char* end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    return {digits, end};
}
