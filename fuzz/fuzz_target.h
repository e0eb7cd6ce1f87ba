// Functions for all fuzz targets.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

// Aborts if a check fails.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

// The outcome of the last input. A target that sets it has a folder of inputs for each
// outcome.
inline std::string outcome;

inline void check(bool condition, const std::string& message) {
    if (!condition) {
        std::cerr << "check failed: " << message << std::endl;
        std::abort();
    }
}

// Returns the fields between the separators, and empty ones up to the count.
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
