// The books and notes that a file holds.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "client/collection/incoming_books.h"

namespace client {

class SkippedRecords {
public:
    // `record` names the record's place and what is wrong with it, for people:
    // "line 12: no title".
    void add(const std::string& record);

    // Names the first ones and how many more there are, one line each; empty if there is
    // none. `file` is the file's path.
    std::string summary(const std::string& file) const;

private:
    std::size_t count_ = 0;
    std::vector<std::string> first_;
};

// No two books have one hash, no two notes of a book one uuid.
struct SourceContent {
    std::vector<IncomingBook> books;
    std::optional<std::string> styleSheet = {};  // text, for the whole collection
    host::OnKnownBook onKnownBook = host::OnKnownBook::FillEmpty;
    SkippedRecords skipped = {};  // records that could not be read, although the rest could
};

}  // namespace client
