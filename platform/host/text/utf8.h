// Validation and repair of UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace host {

bool isUtf8(std::string_view bytes);

// Returns the text with U+FFFD for each byte that belongs to no character.
std::string validUtf8(const std::string& text);

}  // namespace host
