// The inputs of a page: everything in it except its date.
#pragma once

#include <set>
#include <string>

#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

class PageInputs {
public:
    PageInputs();

    // Returns a digest of the book's headings, of the notes with these identifiers (all if
    // empty) in the database's order, and of the style sheet. Throws std::runtime_error if
    // a database cannot be read.
    std::string digest(const host::BookEntry& book,
                       const std::set<unsigned long long>& ids);

private:
    const std::string styleSheet_;
    host::ReaderStore reader_;
    host::LibraryStore library_;
};

}  // namespace client
