#include "terminal/one_line.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <cstddef>

#include "text/utf8.h"

namespace {

bool isControl(unsigned code) { return code < 0x20 || (0x7F <= code && code <= 0x9F); }

bool isSeparatorOrDirection(unsigned code) {
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (0x2028 <= code && code <= 0x202E) || (0x2066 <= code && code <= 0x2069);
}

}  // namespace

std::string oneLine(const std::string& text) {
    const std::string valid = host::validUtf8(text);
    rapidjson::MemoryStream characters(valid.data(), valid.size());
    std::string line;
    while (characters.Tell() < valid.size()) {
        const std::size_t start = characters.Tell();
        unsigned code = 0;
        rapidjson::UTF8<>::Decode(characters, &code);
        const bool harmless = !isControl(code) && !isSeparatorOrDirection(code);
        line += harmless ? valid.substr(start, characters.Tell() - start) : " ";
    }
    return line;
}
