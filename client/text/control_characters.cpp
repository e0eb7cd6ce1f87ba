#include "client/text/control_characters.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <cstddef>

#include "text/utf8.h"

namespace {

bool isSeparatorOrDirection(unsigned code) {
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (0x2028 <= code && code <= 0x202E) || (0x2066 <= code && code <= 0x2069);
}

}  // namespace

bool isControl(unsigned code) { return code < 0x20 || (0x7F <= code && code <= 0x9F); }

std::string replaceSteering(
    const std::string& text,
    const std::function<std::string(unsigned code, std::string_view character)>& instead) {
    const std::string valid = host::validUtf8(text);
    rapidjson::MemoryStream characters(valid.data(), valid.size());
    std::string result;
    while (characters.Tell() < valid.size()) {
        const std::size_t start = characters.Tell();
        unsigned code = 0;
        rapidjson::UTF8<>::Decode(characters, &code);
        const std::string_view character(&valid[start], characters.Tell() - start);
        const bool steers = isControl(code) || isSeparatorOrDirection(code);
        result += steers ? instead(code, character) : std::string(character);
    }
    return result;
}
