// Loads books and notes into the collection.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/incoming_books.h"
#include "client/text/first_few.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

struct LoadResult {
    int changed = 0;  // notes added, changed or removed

    // Notes that differ from the collection's, but are not newer.
    FirstFew kept = {};
};

// Creates the collection if there is none. Hashes must be unique in `books`, and uuids
// within each book. Throws UserError or std::runtime_error. Then no note was written,
// unless the style sheet failed, which is written last.
LoadResult addToCollection(std::vector<IncomingBook>& books, host::OnKnownBook onKnownBook,
                           const std::optional<std::string>& styleSheet);

// Loads into databases that are open. A book whose hash is derived gets the hash of the
// collection's book with its title and author. All notes are one transaction. Titles and
// authors are written to `library` before it, and stay there if it fails.
LoadResult loadBooks(std::vector<IncomingBook>& books, host::OnKnownBook onKnownBook,
                     host::ReaderStore& reader, host::LibraryStore& library);

}  // namespace client
