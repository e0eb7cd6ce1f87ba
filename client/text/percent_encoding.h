// References to files.
#pragma once

#include <string>

// The path as a reference to it, relative when it is. Letters of any language stay
// readable, unless the path holds what is not UTF-8, or steers a terminal.
std::string linkTo(const std::string& path);
