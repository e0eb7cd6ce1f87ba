// A limit to what is read from a database.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <string>

namespace client {

// Rows of a damaged or hostile database may share their pages, or may all have a large
// default value. Then reading it would take far longer than its size allows.
class ReadLimit {
public:
    ReadLimit(SQLite::Database& database, std::string path);

    // Counts the texts of the statement's row, and the pages that were read for it. Throws
    // UserError if the sum is more than the file can hold.
    void count(SQLite::Statement& row);

private:
    const std::string path_;
    sqlite3* const handle_;
    std::uint64_t textsLeft_;  // in bytes
    std::uint64_t pagesLeft_;
};

}  // namespace client
