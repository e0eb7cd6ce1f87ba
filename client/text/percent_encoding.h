// Percent-encoding, RFC 3986.
#pragma once

#include <string>
#include <string_view>

#include "client/text/numbers.h"

namespace client {

// Returns the text; bytes for which `isPlain` returns false are encoded.
template <class IsPlain>
std::string percentEncoded(std::string_view text, const IsPlain& isPlain) {
    std::string result;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        result += isPlain(byte) ? std::string(1, letter)
                                : '%' + hexadecimal(byte, kUpperHexDigits);
    }
    return result;
}

// Returns whether RFC 3986 never requires the byte to be encoded.
bool isUnreserved(unsigned char byte);

// Returns the text with all encoded bytes decoded; "%" before anything else stays.
std::string percentDecoded(std::string_view text);

// Returns a reference to the file at `path`, relative if the path is. Letters of any
// language stay readable, unless the path is not UTF-8 or holds control characters.
std::string linkTo(const std::string& path);

}  // namespace client
