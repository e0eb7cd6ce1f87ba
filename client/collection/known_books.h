// Recognises books of the collection by title and author.
#pragma once

#include <vector>

#include "client/collection/incoming_books.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

// Gives each book whose hash is derived the hash of the book, of the collection or before
// it in `books`, that has its title and author. If several have them, or if it
// has no title, it is a book of the collection that has one of its notes. Composed and
// decomposed characters, invisible characters and the number of spaces make no difference.
void useKnownHashes(std::vector<IncomingBook>& books, host::ReaderStore& reader,
                    host::LibraryStore& library);

}  // namespace client
