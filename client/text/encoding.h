// Conversion of text to UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace client {

// Returns the text as UTF-8, with U+FFFD for what is invalid in the encoding. If the system
// does not know the encoding, the text is returned unchanged.
std::string asUtf8(std::string text, const std::string& encoding);

// Returns a text that starts with the byte order mark of UTF-16 as UTF-8, with that mark.
// Other text is returned unchanged.
std::string utf16AsUtf8(std::string text);

// Returns the text as UTF-8, with U+FFFD for the bytes that Windows-1252 lacks.
std::string windows1252AsUtf8(std::string_view text);

// Returns the line unchanged if it is UTF-8. Any other line is read as Windows-1252.
std::string lineAsUtf8(std::string_view line);

}  // namespace client
