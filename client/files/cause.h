// Why the system refused something, in words.
#pragma once

#include <string>

// Of an error number.
std::string cause(int error);

// The same of a file that could not be made at `path`; of a name that is too long, it tells
// the limit.
std::string causeFor(const std::string& path, int error);
