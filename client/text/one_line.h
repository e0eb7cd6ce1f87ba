// Text from the device or the user, on one line of the client's output.
#pragma once

#include <string>

// The text as UTF-8, with a space for each character that a terminal obeys: controls, line
// and paragraph separators, and what turns the direction of writing. U+FFFD stands for each
// byte that belongs to no character.
std::string oneLine(const std::string& text);
