// Text as a terminal shows it; a file or a pipe gets plain text.
#pragma once

#include <string>

namespace client {

// Whether `descriptor` is a terminal that understands escape sequences.
bool isTerminal(int descriptor);

// The same, and the user did not ask for plain text with NO_COLOR.
bool isColorful(int descriptor);

// The text as standard output shows it in bold.
std::string bold(const std::string& text);

// Returns the text as standard error shows it: after the program's name, each line without
// control characters, because paths and messages may hold any.
std::string errorText(const std::string& text);

}  // namespace client
