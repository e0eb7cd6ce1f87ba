// References to characters in HTML: "&amp;", "&#65;", "&#x41;".
#pragma once

#include <string>
#include <string_view>

namespace client {

// Returns the text with each reference replaced by its character.
std::string withoutReferences(std::string_view text);

}  // namespace client
