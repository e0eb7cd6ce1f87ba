// The hash that names a book, as the reader database has it.
#pragma once

#include <string_view>

namespace host {

// Whether `text` is pairs of lower-case hexadecimal digits, at least one. Nothing else
// comes into the database: a book's hash may become the name of its exported file.
inline bool isBookHash(std::string_view text) {
    return !text.empty() && text.size() % 2 == 0 &&
           text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

}  // namespace host
