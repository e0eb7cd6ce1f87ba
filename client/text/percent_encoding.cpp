#include "client/text/percent_encoding.h"

#include "client/text/ascii.h"
#include "client/text/control_characters.h"

namespace client {
namespace {

bool isPlainInLink(char byte) {
    return isAsciiLetter(byte) || isAsciiDigit(byte) ||
           std::string_view("/-._~").find(byte) != std::string_view::npos;
}

}  // namespace

std::string linkTo(const std::string& path) {
    const bool isText = oneLine(path) == path;
    return percentEncoded(path, [isText](unsigned char byte) {
        return isPlainInLink(static_cast<char>(byte)) || (isText && byte >= 0x80);
    });
}

}  // namespace client
