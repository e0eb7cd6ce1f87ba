// What a terminal is sent beyond plain text; a file or a pipe gets none of it.
#pragma once

#include <string>

namespace client {

// Whether `descriptor` is a terminal that understands escape sequences.
bool isTerminal(int descriptor);

// The same, and the user did not ask for plain text with NO_COLOR.
bool isColorful(int descriptor);

// The text as standard output shows it in bold.
std::string bold(const std::string& text);

}  // namespace client
