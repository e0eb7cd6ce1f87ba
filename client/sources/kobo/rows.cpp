#include "client/sources/kobo/rows.h"

#include <sqlite3.h>

#include <filesystem>
#include <set>
#include <utility>

#include "client/error.h"

namespace client {
namespace {

// A text may grow by half when it is converted from UTF-16.
constexpr std::uint64_t kTextsPerByte = 2;

// SQLite fetches a page again for each column of a row that continues on it.
constexpr std::uint64_t kFetchesPerPage = 16;

std::uint64_t pagesOf(SQLite::Database& database) {
    return static_cast<std::uint64_t>(database.execAndGet("PRAGMA page_count").getInt64());
}

// Returns how many pages were fetched since the last call.
std::uint64_t fetches(sqlite3* handle) {
    std::uint64_t sum = 0;
    for (const int counter : {SQLITE_DBSTATUS_CACHE_HIT, SQLITE_DBSTATUS_CACHE_MISS}) {
        int current = 0;
        int highest = 0;
        sqlite3_db_status(handle, counter, &current, &highest, 1);
        sum += static_cast<unsigned>(current);
    }
    return sum;
}

std::uint64_t textSize(SQLite::Statement& row) {
    std::uint64_t size = 0;
    for (int i = 0; i < row.getColumnCount(); ++i) {
        const SQLite::Column column = row.getColumn(i);
        size += column.isText() || column.isBlob()
                    ? static_cast<std::uint64_t>(column.getBytes())
                    : 0;
    }
    return size;
}

// Takes the amount from what is left; returns false if there is less.
bool take(std::uint64_t amount, std::uint64_t& left) {
    const bool isEnough = amount <= left;
    left -= isEnough ? amount : left;
    return isEnough;
}

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

ReadLimit::ReadLimit(SQLite::Database& database, std::string path)
    : path_(std::move(path)),
      handle_(database.getHandle()),
      textsLeft_(kTextsPerByte * std::filesystem::file_size(path_)),
      pagesLeft_(kFetchesPerPage * pagesOf(database)) {
    fetches(handle_);
}

void ReadLimit::count(SQLite::Statement& row) {
    if (!take(textSize(row), textsLeft_) || !take(fetches(handle_), pagesLeft_)) {
        throw UserError(path_ + " is damaged: its rows hold more than the whole file.");
    }
}

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
