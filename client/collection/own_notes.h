// Notes that earlier loads of the same file gave.
#pragma once

#include <cstdint>

#include "client/collection/incoming_books.h"
#include "store/reader_store.h"

namespace client {

// Makes room for the notes of a book whose file has grown: removes what the file gave
// before and does not give now. A note is only touched if every tag of it is a value that
// records of the file give to it; of its comment, each paragraph must be one that the file
// gives to a note of the book. The note is removed if the file replaces it, unless its
// comment now belongs to a note on which something else has commented. Otherwise its tags
// are, so that the load gives it all of them. Returns the number of removed notes.
int removeOwnNotes(const IncomingBook& book, std::int64_t bookId, host::ReaderStore& store);

}  // namespace client
