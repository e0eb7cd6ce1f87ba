// The hash of a book in the reader database.
#pragma once

#include <string_view>

namespace host {

// Returns whether `text` is one or more pairs of lower-case hexadecimal digits. Other
// hashes are not stored, because a book's hash may become the name of its exported file.
inline bool isBookHash(std::string_view text) {
    return !text.empty() && text.size() % 2 == 0 &&
           text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

}  // namespace host
