// Text for terminals; files and pipes get plain text.
#pragma once

#include <string>

namespace client {

// Returns whether `descriptor` is a terminal that supports escape sequences.
bool isTerminal(int descriptor);

// Also returns false if the user requested plain text with NO_COLOR.
bool isColorful(int descriptor);

// Returns the text in bold for standard output.
std::string bold(const std::string& text);

// Returns the path for a line of standard output: every byte of it, but as oneLine() if a
// terminal reads it, which would obey some characters, or if it has a line feed.
std::string printable(const std::string& path);

// Returns the message for standard error: after the program's name, and without control
// characters, because paths may contain any.
std::string errorText(const std::string& text);

}  // namespace client
