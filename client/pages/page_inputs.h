// The inputs of a page: everything in it except its date.
#pragma once

#include <string>

#include "client/pages/note_selection.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

class PageInputs {
public:
    PageInputs();

    // Returns a digest of the book's headings, of the selected notes and their order, and
    // of the style sheet. Throws std::runtime_error if a database cannot be read.
    std::string digest(const host::BookEntry& book, const NoteSelection& notes);

private:
    const std::string styleSheet_;
    host::ReaderStore reader_;
    host::LibraryStore library_;
};

}  // namespace client
