// Adds books and notes to the collection.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/book.h"
#include "client/collection/note.h"
#include "store/reader_store.h"

namespace client {

struct IncomingBook {
    Book book;  // an empty title, author or path is not known
    std::vector<Note> notes;
    // Notes from the dump of another collection, with any tags.
    std::vector<host::NoteRecord> records;
};

// Creates the collection if there is none. Moves the notes out of `books`. Hashes must be
// unique in `books`, and uuids within each book. Known notes are replaced by newer ones
// only. Throws UserError or std::runtime_error; then either no note or every note was
// written.
host::LoadResult addToCollection(std::vector<IncomingBook>& books,
                                 host::OnKnownBook onKnownBook,
                                 const std::optional<std::string>& styleSheet);

// Returns the books as records, and moves the notes out of them.
std::vector<host::BookRecord> takeRecords(std::vector<IncomingBook>& books);

}  // namespace client
