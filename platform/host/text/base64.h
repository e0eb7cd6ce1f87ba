// Base64, RFC 4648.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// Padded, on one line.
std::string encodeBase64(const std::string& bytes);

// Nothing when `text` is not Base64 as Base64Decoder reads it.
std::optional<std::string> decodeBase64(std::string_view text);

// Decodes text that arrives in pieces. Spaces, tabs and line ends are skipped; padding is
// required, and anything else foreign is an error. After an error the decoder is of no use.
class Base64Decoder {
public:
    // Appends the bytes that the text spells so far to `bytes`. False on an error.
    bool feed(const char* text, std::size_t size, std::string& bytes);

    // To be called after the last piece; appends the last bytes. False when the text is cut
    // or wrongly padded.
    bool finish(std::string& bytes);

private:
    std::string pending_;  // between feeds 0 to 4 characters: the last ones may be padded
};

}  // namespace host
