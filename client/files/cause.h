// The causes of the system's failures, in words.
#pragma once

#include <string>

namespace client {

// Returns the words for an error number.
std::string cause(int error);

// Returns the words for a file that could not be made at `path`; if the name is too long,
// with the limit.
std::string causeFor(const std::string& path, int error);

}  // namespace client
