// The range that was added last at each position.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>

#include "client/sources/clippings/clipping.h"

namespace client {

class LatestRanges {
public:
    // Adds a range with a value; it hides what was there before.
    void add(const ClippingRange& range, std::size_t value);

    // Returns the value of the latest range that contains the position.
    std::optional<std::size_t> at(std::int64_t position) const;

private:
    struct Part {
        std::int64_t last;
        std::size_t value;
    };

    void splitBefore(std::int64_t position);

    std::map<std::int64_t, Part> parts_;  // disjoint, by first position
};

}  // namespace client
