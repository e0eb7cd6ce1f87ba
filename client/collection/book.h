// A book of the collection.
#pragma once

#include <string>

namespace client {

struct Book {
    std::string hash;  // pairs of lower-case hexadecimal digits
    std::string title;
    std::string author;
    std::string path;  // of the book's file
};

// Returns the book's title, or its hash if it has none.
inline const std::string& nameOf(const Book& book) {
    return book.title.empty() ? book.hash : book.title;
}

}  // namespace client
