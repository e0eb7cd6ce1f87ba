// Errors as a person reads them.
#pragma once

#include <string>

namespace client {

// Returns the text as standard error shows it: after the program's name, each line without
// control characters, because paths and messages may hold any.
std::string errorText(const std::string& text);

}  // namespace client
