// Rows of a database that may be of any firmware, damaged or hostile.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <string>
#include <vector>

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

// The rows of a table whose columns differ between firmwares.
class KoboRows {
public:
    // A column that is missing in the table is NULL. The references must stay valid.
    KoboRows(SQLite::Database& database, const char* table,
             const std::vector<const char*>& columns, ReadLimit& limit);

    // Reads the next row; returns false at the end.
    bool next();

    SQLite::Column column(int index) { return rows_.getColumn(index); }

private:
    SQLite::Statement rows_;
    ReadLimit& limit_;
};

}  // namespace client
