// Text from the collection or the user, on one line of the client's output.
#pragma once

#include <string>

namespace client {

// Returns the text as UTF-8, with a space for each character that a terminal obeys, and
// U+FFFD for each byte that belongs to no character.
std::string oneLine(const std::string& text);

}  // namespace client
