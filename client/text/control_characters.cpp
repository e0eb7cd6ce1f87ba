#include "client/text/control_characters.h"

#include <utf8proc.h>

#include <cstddef>

namespace client {
namespace {

struct Character {
    unsigned code;
    std::string_view bytes;
};

// Returns the first character; U+FFFD for a byte that belongs to no character.
Character firstCharacter(std::string_view text) {
    utf8proc_int32_t code = 0;
    const utf8proc_ssize_t length =
        utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                         static_cast<utf8proc_ssize_t>(text.size()), &code);
    return length > 0 ? Character{static_cast<unsigned>(code),
                                  text.substr(0, static_cast<std::size_t>(length))}
                      : Character{0xFFFD, text.substr(0, 1)};
}

bool isSeparatorOrDirection(unsigned code) {
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (0x2028 <= code && code <= 0x202E) || (0x2066 <= code && code <= 0x2069);
}

bool isNoncharacter(unsigned code) { return code == 0xFFFE || code == 0xFFFF; }

}  // namespace

bool isControl(unsigned code) { return code < 0x20 || (0x7F <= code && code <= 0x9F); }

std::string replaceControls(
    std::string_view text,
    const std::function<std::string(unsigned code, std::string_view character)>& instead) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto [code, bytes] = firstCharacter(text);
        text.remove_prefix(bytes.size());
        if (isControl(code) || isSeparatorOrDirection(code) || isNoncharacter(code)) {
            result += instead(code, bytes);
        } else {
            result += code == 0xFFFD ? "\uFFFD" : bytes;
        }
    }
    return result;
}

std::string oneLine(const std::string& text) {
    return replaceControls(text, [](unsigned /*code*/, std::string_view /*character*/) {
        return std::string(" ");
    });
}

}  // namespace client
