// Looks for one of several words.
#pragma once

#include <algorithm>
#include <string_view>

#include "client/text/affixes.h"

namespace client {

template <class Words>
bool hasOneOf(std::string_view text, const Words& words) {
    return std::any_of(words.begin(), words.end(), [text](std::string_view word) {
        return text.find(word) != std::string_view::npos;
    });
}

// Spaces before the word do not count.
template <class Words>
bool startsWithOneOf(std::string_view text, const Words& words) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return prefixLength(text, words) > 0;
}

}  // namespace client
