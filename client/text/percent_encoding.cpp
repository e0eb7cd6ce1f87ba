#include "client/text/percent_encoding.h"

#include <string_view>

#include "client/text/one_line.h"

namespace {

constexpr char kDigits[] = "0123456789ABCDEF";

bool isPlainInLink(unsigned char byte) {
    const bool isAlphanumeric = ('0' <= byte && byte <= '9') ||
                                ('a' <= byte && byte <= 'z') ||
                                ('A' <= byte && byte <= 'Z');
    return isAlphanumeric || std::string_view("/-._~").find(static_cast<char>(byte)) !=
                                 std::string_view::npos;
}

}  // namespace

std::string linkTo(const std::string& path) {
    const bool isText = oneLine(path) == path;
    std::string result;
    for (const char letter : path) {
        const auto byte = static_cast<unsigned char>(letter);
        if (isPlainInLink(byte) || (isText && byte >= 0x80)) {
            result += letter;
        } else {
            result.append({'%', kDigits[byte / 16], kDigits[byte % 16]});
        }
    }
    return result;
}
