#include "client/sources/clippings/latest_ranges.h"

#include <iterator>

namespace client {

// Afterwards, no part contains both the position and the one before it.
void LatestRanges::splitBefore(std::int64_t position) {
    auto next = parts_.lower_bound(position);
    if (next == parts_.begin()) {
        return;
    }
    Part& part = std::prev(next)->second;
    if (part.last >= position) {
        parts_.emplace_hint(next, position, part);
        part.last = position - 1;
    }
}

void LatestRanges::add(const ClippingRange& range, std::size_t value) {
    splitBefore(range.first);
    splitBefore(range.last + 1);
    parts_.erase(parts_.lower_bound(range.first), parts_.upper_bound(range.last));
    parts_[range.first] = {range.last, value};
}

std::optional<std::size_t> LatestRanges::at(std::int64_t position) const {
    const auto next = parts_.upper_bound(position);
    if (next == parts_.begin()) {
        return std::nullopt;
    }
    const Part& part = std::prev(next)->second;
    return part.last >= position ? std::optional(part.value) : std::nullopt;
}

}  // namespace client
