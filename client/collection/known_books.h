// Recognises books of the collection by title and author.
#pragma once

#include <vector>

#include "client/collection/incoming_books.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

// Looks for the title and author of each book whose hash is derived, in the collection and
// in the books before it. If one book has both, the incoming one gets its hash. If several
// have both, or there is no title, it gets the hash of one that has one of its notes.
// Composed and decomposed characters, invisible characters and the number of spaces make no
// difference.
void useKnownHashes(std::vector<IncomingBook>& books, host::ReaderStore& reader,
                    host::LibraryStore& library);

}  // namespace client
