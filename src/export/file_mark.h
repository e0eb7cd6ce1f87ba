// The mark of exported and imported files in the device's library database.
#pragma once

#include <string>

namespace veloran {

// Returns the fast hash of the file at `path`, or an empty text if it cannot be computed.
std::string hashOfFile(const std::string& path);

// Marks the file with this fast hash as an exported document.
void markFile(const std::string& hash);

}  // namespace veloran
