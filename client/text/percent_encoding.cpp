#include "client/text/percent_encoding.h"

#include "client/text/ascii.h"
#include "client/text/control_characters.h"

namespace client {
bool isUnreserved(unsigned char byte) {
    const char letter = static_cast<char>(byte);
    return isAsciiLetter(letter) || isAsciiDigit(letter) ||
           std::string_view("-._~").find(letter) != std::string_view::npos;
}

std::string percentDecoded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto byte = text[0] == '%' && text.size() >= 3
                              ? parseNumber<unsigned char>(text.substr(1, 2), 16)
                              : std::nullopt;
        result += byte ? static_cast<char>(*byte) : text[0];
        text.remove_prefix(byte ? 3 : 1);
    }
    return result;
}

std::string linkTo(const std::string& path) {
    const bool isText = oneLine(path) == path;
    return percentEncoded(path, [isText](unsigned char byte) {
        return byte == '/' || isUnreserved(byte) || (isText && byte >= 0x80);
    });
}

}  // namespace client
