// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

// Aborts when something does not hold.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// How the last input went. A target that tells has a folder of inputs for each outcome.
inline std::string outcome;

inline void check(bool condition, const std::string& message) {
    if (!condition) {
        std::cerr << "does not hold: " << message << std::endl;
        std::abort();
    }
}

// What stands between the separators, and empty fields up to the count.
inline std::vector<std::string> fieldsOf(std::string_view text, char separator,
                                         std::size_t count = 1) {
    std::vector<std::string> fields(1);
    for (const char byte : text) {
        byte == separator ? fields.emplace_back() : fields.back() += byte;
    }
    fields.resize(std::max(count, fields.size()));
    return fields;
}

}  // namespace fuzz
