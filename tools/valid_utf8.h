// Text from the device, whose strings may hold any bytes, as UTF-8.
#pragma once

#include <string>

// The text with U+FFFD for each byte that belongs to no character.
std::string validUtf8(const std::string& text);
