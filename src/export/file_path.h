// Paths that can name a file.
#pragma once

#include <string>

namespace veloran {

// Returns false if the path contains a zero byte, because the system would open the file
// whose name ends there.
inline bool namesFile(const std::string& path) {
    return path.find('\0') == std::string::npos;
}

}  // namespace veloran
