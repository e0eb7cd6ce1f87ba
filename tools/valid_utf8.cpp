#include "valid_utf8.h"

#include <rapidjson/encodings.h>
#include <rapidjson/memorystream.h>

#include <cstddef>
#include <utility>

namespace {

struct Appender {
    void Put(char byte) { text += byte; }
    std::string text;
};

}  // namespace

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
