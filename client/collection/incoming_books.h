// Puts books and notes into the collection.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/book.h"
#include "client/collection/note.h"
#include "store/reader_store.h"

namespace client {

struct IncomingBook {
    Book book;  // an empty title, author or path: nobody named one
    std::vector<Note> notes;
    // Notes that come as another collection kept them, with tags of any number.
    std::vector<host::NoteRecord> records;
};

// Makes the collection if there is none. Takes the notes out of `books`: no two books of
// them may have one hash, no two notes of a book one uuid. Notes that the collection has
// stay where they are not older. Throws UserError or std::runtime_error, and has then
// written nothing, or all notes.
host::LoadResult addToCollection(std::vector<IncomingBook>& books,
                                 host::OnKnownBook onKnownBook,
                                 const std::optional<std::string>& styleSheet);

// Returns the books as records, and takes the notes out of them.
std::vector<host::BookRecord> takeRecords(std::vector<IncomingBook>& books);

}  // namespace client
