#include "client/sources/exported_page/character_references.h"

#include <libxml/HTMLparser.h>
#include <utf8proc.h>

#include <algorithm>
#include <cstdint>

#include "client/text/affixes.h"
#include "client/text/numbers.h"

namespace client {
namespace {

constexpr std::size_t kLongestName = 32;

// Returns the character that the text between "&" and ";" names, or 0.
std::uint32_t characterNamed(std::string_view name) {
    if (!startsWith(name, "#")) {
        const std::string text(name);
        const auto* entity =
            htmlEntityLookup(reinterpret_cast<const xmlChar*>(text.c_str()));
        return entity == nullptr ? 0 : entity->value;
    }
    const bool isHexadecimal = name.size() > 1 && (name[1] == 'x' || name[1] == 'X');
    name.remove_prefix(isHexadecimal ? 2 : 1);
    return parseNumber<std::uint32_t>(name, isHexadecimal ? 16 : 10).value_or(0);
}

bool appendCharacter(std::uint32_t character, std::string& text) {
    constexpr std::uint32_t kLast = 0x10ffff;
    const auto code = static_cast<utf8proc_int32_t>(std::min(character, kLast + 1));
    if (code == 0 || !utf8proc_codepoint_valid(code)) {
        return false;
    }
    utf8proc_uint8_t bytes[4];
    const auto length = static_cast<std::size_t>(utf8proc_encode_char(code, bytes));
    text.append(reinterpret_cast<const char*>(bytes), length);
    return true;
}

}  // namespace

std::string withoutReferences(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t start = text.find('&');
        result += text.substr(0, start);
        text.remove_prefix(std::min(start, text.size()));
        const std::size_t end = text.substr(0, kLongestName).find(';');
        const std::uint32_t character =
            end == std::string_view::npos ? 0 : characterNamed(text.substr(1, end - 1));
        if (appendCharacter(character, result)) {
            text.remove_prefix(end + 1);
        } else if (!text.empty()) {
            result += '&';
            text.remove_prefix(1);
        }
    }
    return result;
}

}  // namespace client
