// Numbers as text, independent of the locale.
#pragma once

#include <charconv>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace client {

// Returns the shortest decimal text without an exponent that reads back as `number`.
inline std::string decimal(double number) {
    char digits[std::numeric_limits<double>::max_exponent10 + 400];
    char* end =
        std::to_chars(digits, digits + sizeof digits, number, std::chars_format::fixed).ptr;
    return {digits, end};
}

// Returns the number, as std::from_chars reads it in `form` (a base, or a format); nullopt
// if the whole text is not a number.
template <class Number, class... Form>
std::optional<Number> parseNumber(std::string_view text, Form... form) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number, form...);
    return parsed.ec == std::errc() && parsed.ptr == end ? std::optional(number)
                                                         : std::nullopt;
}

inline constexpr char kLowerHexDigits[] = "0123456789abcdef";
inline constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

// Returns the two digits of the byte.
inline std::string hexadecimal(unsigned char byte, const char* digits = kLowerHexDigits) {
    return {digits[byte / 16], digits[byte % 16]};
}

}  // namespace client
