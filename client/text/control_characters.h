// Characters that control a terminal, and noncharacters.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace client {

bool isControl(unsigned code);

// Returns the text as UTF-8, with the result of `instead` for each character that controls
// a terminal (controls, line and paragraph separators, and marks that change the direction
// of writing) and for U+FFFE and U+FFFF, which YAML forbids. U+FFFD replaces each byte that
// belongs to no character.
std::string replaceControls(
    std::string_view text,
    const std::function<std::string(unsigned code, std::string_view character)>& instead);

// Does the same with a space for each of these characters.
std::string oneLine(const std::string& text);

}  // namespace client
