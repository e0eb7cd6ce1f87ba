// ASCII letters and digits, independent of the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace client {

inline bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

inline bool isAsciiDigit(char byte) { return byte >= '0' && byte <= '9'; }

inline char asciiLowered(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

inline std::string asciiLowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char byte) { return asciiLowered(byte); });
    return result;
}

inline bool isAsciiLetter(char byte) {
    return asciiLowered(byte) >= 'a' && asciiLowered(byte) <= 'z';
}

}  // namespace client
