#include "client/text/encoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "client/text/affixes.h"
#include "text/utf8.h"

namespace client {
namespace {

class Converter {
public:
    // `unit` is the number of bytes of the encoding's shortest character.
    Converter(const std::string& encoding, std::size_t unit)
        : handle_(iconv_open("UTF-8", encoding.c_str())), unit_(unit) {}
    ~Converter() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isOpen() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    std::string converted(std::string& text);

private:
    iconv_t handle_;
    std::size_t unit_;
};

std::string Converter::converted(std::string& text) {
    std::vector<char> block(65536);
    std::string result;
    char* from = text.data();
    std::size_t left = text.size();
    while (left > 0) {
        char* to = block.data();
        std::size_t room = block.size();
        const bool isWhole =
            iconv(handle_, &from, &left, &to, &room) != static_cast<std::size_t>(-1);
        const bool isInvalid = !isWhole && errno != E2BIG;
        result.append(block.data(), block.size() - room);
        if (isInvalid) {
            const std::size_t skipped = std::min(unit_, left);
            from += skipped;
            left -= skipped;
            result += "\uFFFD";
        }
    }
    char* to = block.data();
    std::size_t room = block.size();
    iconv(handle_, nullptr, nullptr, &to, &room);  // some encodings hold a letter back
    return result.append(block.data(), block.size() - room);
}

std::string converted(std::string& text, const std::string& encoding, std::size_t unit) {
    Converter converter(encoding, unit);
    return converter.isOpen() ? converter.converted(text) : std::move(text);
}

constexpr std::array<std::string_view, 32> kFrom80To9F = {
    "€", "\uFFFD", "‚",      "ƒ", "„",      "…",      "†", "‡",      "ˆ", "‰", "Š",
    "‹", "Œ",      "\uFFFD", "Ž", "\uFFFD", "\uFFFD", "‘", "’",      "“", "”", "•",
    "–", "—",      "˜",      "™", "š",      "›",      "œ", "\uFFFD", "ž", "Ÿ"};

}  // namespace

std::string asUtf8(std::string text, const std::string& encoding) {
    // An empty name would mean the encoding of the locale.
    return encoding.empty() ? std::move(text) : converted(text, encoding, 1);
}

std::string utf16AsUtf8(std::string text) {
    return startsWith(text, "\xff\xfe")   ? converted(text, "UTF-16LE", 2)
           : startsWith(text, "\xfe\xff") ? converted(text, "UTF-16BE", 2)
                                          : std::move(text);
}

std::string windows1252AsUtf8(std::string_view text) {
    std::string result;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            result += character;
        } else if (byte < 0xA0) {
            result += kFrom80To9F[byte - 0x80U];
        } else {  // the code of the character, in two bytes of UTF-8
            result += byte < 0xC0 ? '\xC2' : '\xC3';
            result += static_cast<char>(byte & 0xBFU);
        }
    }
    return result;
}

std::string lineAsUtf8(std::string_view line) {
    return host::isUtf8(line) ? std::string(line) : windows1252AsUtf8(line);
}

}  // namespace client
