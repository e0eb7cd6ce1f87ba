// A stable sort that is safe with inconsistent predicates.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace veloran {

// Appends both sorted ranges to `out` as one. Each step consumes one element, so it stays
// inside the ranges for any result of `before`. Of equivalent elements, those of the first
// range come first.
template <class Iterator, class T, class Before>
void mergeInto(std::vector<T>& out, Iterator first, Iterator middle, Iterator last,
               Before& before) {
    Iterator second = middle;
    while (first != middle && second != last) {
        out.push_back(before(*second, *first) ? *second++ : *first++);
    }
    out.insert(out.end(), first, middle);
    out.insert(out.end(), second, last);
}

// Sorts `items`; equivalent elements keep their order. If `before` is not a strict weak
// ordering, the order is unspecified but no element is lost; the standard library's
// algorithms are undefined then. The same holds if `before` throws.
template <class T, class Before>
void mergeSort(std::vector<T>& items, Before before) {
    std::vector<T> merged;
    merged.reserve(items.size());
    const auto at = [&items](std::size_t index) {
        return items.begin() + static_cast<std::ptrdiff_t>(std::min(index, items.size()));
    };
    for (std::size_t width = 1; width < items.size(); width *= 2) {
        for (std::size_t first = 0; first < items.size(); first += 2 * width) {
            mergeInto(merged, at(first), at(first + width), at(first + 2 * width), before);
        }
        items.swap(merged);
        merged.clear();
    }
}

}  // namespace veloran
