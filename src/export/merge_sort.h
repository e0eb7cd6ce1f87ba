// A stable sort that is safe with inconsistent predicates.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace veloran {

// Appends both sorted ranges to `out` as one. Each step takes one element that is there, so
// that the ranges are not left, whatever `before` answers; of equivalent elements the first
// range's come first.
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

// Elements that `before` calls equivalent keep their order. A predicate that is no strict
// weak ordering, or changes its mind, gives some order of the same elements: unlike the
// standard library's algorithms, which are undefined then. An exception of the predicate
// leaves `items` with its elements in some order.
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
