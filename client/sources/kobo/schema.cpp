#include "client/sources/kobo/schema.h"

#include <sqlite3.h>

#include "client/error.h"

namespace client {
namespace {

int countOf(SQLite::Database& database, const char* query) {
    SQLite::Statement count(database, query);
    count.executeStep();
    return count.getColumn(0).getInt();
}

[[noreturn]] void refuse(const std::string& path, const std::string& why) {
    throw UserError(path + " is not as a Kobo reader writes it: " + why + '.');
}

}  // namespace

void distrust(SQLite::Database& database) {
    constexpr int kMaxBytes = 16 << 20;  // of one value
    sqlite3* const handle = database.getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_ENABLE_VIEW, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kMaxBytes);
}

// Asks SQLite what the tables are: the types in sqlite_master are texts of the file, which
// may name a view a table.
void requireKoboTables(SQLite::Database& database, const std::string& path) {
    SQLite::Statement tables(database,
                             "SELECT name, type FROM pragma_table_list WHERE schema = "
                             "'main' AND name IN ('Bookmark', 'content')");
    int found = 0;
    for (; tables.executeStep(); ++found) {
        if (const std::string type = tables.getColumn(1); type != "table") {
            refuse(path, tables.getColumn(0).getString() + " is a table of type " + type);
        }
    }
    if (found != 2) {
        throw UserError(path +
                        " is not the database of a Kobo reader, which has the tables "
                        "Bookmark and content.");
    }
    constexpr const char* kComputed =
        "SELECT count(*) FROM (SELECT 'Bookmark' AS name UNION ALL SELECT 'content') AS "
        "tables, pragma_table_xinfo(tables.name) AS columns WHERE columns.hidden IN (2, 3)";
    if (countOf(database, kComputed) != 0) {
        refuse(path, "columns of Bookmark or content are computed");
    }
}

}  // namespace client
