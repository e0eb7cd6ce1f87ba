// What a book's hash is made of.
#pragma once

#include <string_view>

namespace host {

// Whether `text` spells bytes: pairs of hexadecimal digits in lower case, not empty. The
// library database is asked for these bytes; any other text could be a path, an option or
// an escape sequence wherever it is printed.
inline bool isBookHash(std::string_view text) {
    return !text.empty() && text.size() % 2 == 0 &&
           text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

}  // namespace host
