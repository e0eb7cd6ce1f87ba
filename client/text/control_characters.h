// Characters that a terminal obeys instead of showing them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

bool isControl(unsigned code);

// The text as UTF-8, with what `instead` makes of each character that a terminal obeys:
// controls, line and paragraph separators, and what turns the direction of writing. U+FFFD
// stands for each byte that belongs to no character.
std::string replaceSteering(
    const std::string& text,
    const std::function<std::string(unsigned code, std::string_view character)>& instead);
