// The beginnings and the ends of texts.
#pragma once

#include <cstddef>
#include <string_view>

namespace client {

inline bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

inline bool endsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() &&
           text.substr(text.size() - suffix.size()) == suffix;
}

// Returns the text without the prefix, or all of it if it does not start so.
inline std::string_view withoutPrefix(std::string_view text, std::string_view prefix) {
    return text.substr(startsWith(text, prefix) ? prefix.size() : 0);
}

inline constexpr std::string_view kByteOrderMark = "\ufeff";

inline std::string_view withoutByteOrderMark(std::string_view text) {
    return withoutPrefix(text, kByteOrderMark);
}

// Returns the length of the first of `prefixes` that the text starts with, or 0.
template <class Texts>
std::size_t prefixLength(std::string_view text, const Texts& prefixes) {
    for (const std::string_view prefix : prefixes) {
        if (startsWith(text, prefix)) {
            return prefix.size();
        }
    }
    return 0;
}

// Returns the length of the first of `suffixes` that the text ends with, or 0.
template <class Texts>
std::size_t suffixLength(std::string_view text, const Texts& suffixes) {
    for (const std::string_view suffix : suffixes) {
        if (endsWith(text, suffix)) {
            return suffix.size();
        }
    }
    return 0;
}

// Returns the text without any of `spaces` at either end.
template <class Texts>
std::string_view trimmed(std::string_view text, const Texts& spaces) {
    while (const std::size_t length = prefixLength(text, spaces)) {
        text.remove_prefix(length);
    }
    while (const std::size_t length = suffixLength(text, spaces)) {
        text.remove_suffix(length);
    }
    return text;
}

}  // namespace client
