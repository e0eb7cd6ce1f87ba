// The books and notes of a file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/incoming_books.h"
#include "client/text/first_few.h"

namespace client {

class SkippedRecords {
public:
    // `record` is a message with the record's position and fault: "line 12: no title".
    void add(const std::string& record);

    // Returns a line for each of the first ones, and the number of the rest; empty if there
    // is none. `file` is the file's path.
    std::string summary(const std::string& file) const;

private:
    FirstFew records_;
};

// Hashes are unique, and uuids are unique within a book.
struct SourceContent {
    std::vector<IncomingBook> books;
    std::optional<std::string> styleSheet = {};  // text, for the whole collection
    host::OnKnownBook onKnownBook = host::OnKnownBook::FillEmpty;
    SkippedRecords skipped = {};  // records that could not be read
    std::string remark = {};      // lines about the file as a whole
};

}  // namespace client
