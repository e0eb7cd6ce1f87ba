// The mark that the device's library database keeps for every exported and imported file.
#pragma once

#include <string>

namespace veloran {

// The fast hash of the file at `path`; empty when it cannot be computed.
std::string hashOfFile(const std::string& path);

// Marks the file with this fast hash as an exported document.
void markFile(const std::string& hash);

}  // namespace veloran
