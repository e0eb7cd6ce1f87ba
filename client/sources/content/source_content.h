// The books and notes that a file holds.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/incoming_books.h"
#include "client/sources/content/skipped_records.h"

namespace client {

// No two books have one hash, no two notes of a book one uuid.
struct SourceContent {
    std::vector<IncomingBook> books;
    std::optional<std::string> styleSheet = {};  // text, for the whole collection
    host::OnKnownBook onKnownBook = host::OnKnownBook::FillEmpty;
    SkippedRecords skipped = {};  // records that could not be read, although the rest could
};

}  // namespace client
