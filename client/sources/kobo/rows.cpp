#include "client/sources/kobo/rows.h"

#include <set>
#include <string>

namespace client {
namespace {

std::set<std::string> columnsOf(SQLite::Database& database, const char* table) {
    std::set<std::string> names;
    SQLite::Statement rows(database, "SELECT name FROM pragma_table_info(?)");
    rows.bind(1, table);
    while (rows.executeStep()) {
        names.insert(rows.getColumn(0).getString());
    }
    return names;
}

// Leaves conditions and the order to the caller: with them, SQLite would copy values before
// their sizes are known.
std::string selection(SQLite::Database& database, const char* table,
                      const std::vector<const char*>& wanted) {
    const std::set<std::string> columns = columnsOf(database, table);
    std::string text = "SELECT ";
    const char* separator = "";
    for (const char* name : wanted) {
        text.append(separator).append(columns.count(name) > 0 ? name : "NULL");
        separator = ", ";
    }
    return text.append(" FROM ").append(table);
}

}  // namespace

KoboRows::KoboRows(SQLite::Database& database, const char* table,
                   const std::vector<const char*>& columns, ReadLimit& limit)
    : rows_(database, selection(database, table, columns)), limit_(limit) {}

bool KoboRows::next() {
    const bool isRow = rows_.executeStep();
    if (isRow) {
        limit_.count(rows_);
    }
    return isRow;
}

}  // namespace client
