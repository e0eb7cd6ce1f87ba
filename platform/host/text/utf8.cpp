#include "text/utf8.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace host {
namespace {

struct Appender {
    void Put(char byte) { text += byte; }
    std::string text;
};

struct Nowhere {
    void Put(char /*c*/) {}
};

bool startsWithAsciiWord(std::string_view bytes) {
    std::uint64_t word = 0;
    if (bytes.size() < sizeof word) {
        return false;
    }
    std::memcpy(&word, bytes.data(), sizeof word);
    return (word & 0x8080808080808080U) == 0;
}

}  // namespace

// Checks eight bytes at a time while they are ASCII, as most text is.
bool isUtf8(std::string_view bytes) {
    Nowhere nowhere;
    while (!bytes.empty()) {
        std::size_t length = sizeof(std::uint64_t);
        if (!startsWithAsciiWord(bytes)) {
            rapidjson::MemoryStream stream(bytes.data(), bytes.size());
            if (!rapidjson::UTF8<>::Validate(stream, nowhere)) {
                return false;
            }
            length = stream.Tell();
        }
        bytes.remove_prefix(length);
    }
    return true;
}

std::string validUtf8(const std::string& text) {
    rapidjson::MemoryStream bytes(text.data(), text.size());
    Appender valid;
    while (bytes.Tell() < text.size()) {
        const std::size_t start = bytes.Tell();
        const std::size_t kept = valid.text.size();
        if (!rapidjson::UTF8<>::Validate(bytes, valid)) {
            valid.text.resize(kept);
            valid.text += "\uFFFD";
            bytes.src_ = bytes.begin_ + start + 1;
        }
    }
    return std::move(valid.text);
}

}  // namespace host
