// Base64, RFC 4648.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

// Returns padded Base64 on one line.
std::string encodeBase64(const std::string& bytes);

// Returns nullopt if Base64Decoder rejects the text.
std::optional<std::string> decodeBase64(std::string_view text);

// Decodes text that arrives in pieces. Skips spaces, tabs and line ends; padding is
// required, and any other character is an error. After an error the decoder must not be
// used.
class Base64Decoder {
public:
    // Appends the bytes decoded so far to `bytes`. Returns false on an error.
    bool feed(const char* text, std::size_t size, std::string& bytes);

    // Appends the last bytes; call it after the last piece. Returns false if the text is
    // cut or wrongly padded.
    bool finish(std::string& bytes);

private:
    std::string pending_;  // between feeds 0 to 4 characters: the last ones may be padded
};

}  // namespace host
