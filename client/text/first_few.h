// The first lines of a list that may be long.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace client {

inline constexpr std::size_t kMaxNamed = 3;

// Returns the first of `lines`, indented, and the number of the rest out of `count`.
inline std::string firstFew(const std::vector<std::string>& lines, std::size_t count) {
    const std::size_t named = std::min(lines.size(), kMaxNamed);
    std::string text;
    for (std::size_t i = 0; i < named; ++i) {
        text += "  " + lines[i] + "\n";
    }
    return named == count ? text
                          : text + "  and " + std::to_string(count - named) + " more\n";
}

}  // namespace client
