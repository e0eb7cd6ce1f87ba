// The rows of a table whose columns differ between firmwares.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <vector>

#include "client/sources/kobo/read_limit.h"

namespace client {

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
