// Bytes as hexadecimal digits.
#pragma once

#include <string>

namespace client {

inline constexpr char kLowerHexDigits[] = "0123456789abcdef";
inline constexpr char kUpperHexDigits[] = "0123456789ABCDEF";

// Returns the two digits of the byte.
inline std::string hexadecimal(unsigned char byte, const char* digits = kLowerHexDigits) {
    return {digits[byte / 16], digits[byte % 16]};
}

}  // namespace client
