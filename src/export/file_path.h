// Paths that can name a file.
#pragma once

#include <string>

namespace veloran {

// Returns whether the path is free of zero bytes. The system reads a path up to its zero
// byte, and would open another file: the one whose name stands before that byte.
inline bool namesFile(const std::string& path) {
    return path.find('\0') == std::string::npos;
}

}  // namespace veloran
