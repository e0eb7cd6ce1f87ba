// Bytes that are UTF-8, or become it.
#pragma once

#include <string>
#include <string_view>

namespace host {

bool isUtf8(std::string_view bytes);

// The text with U+FFFD for each byte that belongs to no character.
std::string validUtf8(const std::string& text);

}  // namespace host
