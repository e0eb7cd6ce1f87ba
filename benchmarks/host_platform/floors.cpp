#include "floors.h"

#include <sqlite3.h>

#include <memory>
#include <vector>

#include "store/database_paths.h"
#include "store/reader_store.h"

namespace {

constexpr char kAllRows[] =
    "SELECT uuid, tag, text, json, timestamp FROM notes JOIN tags ON note_id = id "
    "ORDER BY id, tag";
constexpr char kRowsOfNote[] =
    "SELECT uuid, tag, text, json, timestamp FROM notes JOIN tags ON note_id = id "
    "WHERE id = ?";

using Database = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;
using Statement = std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)>;

Database openDatabase() {
    sqlite3* database = nullptr;
    sqlite3_open(host::kReaderDatabasePath, &database);
    return {database, sqlite3_close};
}

void execute(const Database& database, const char* sql) {
    sqlite3_exec(database.get(), sql, nullptr, nullptr, nullptr);
}

Statement prepare(const Database& database, const char* sql) {
    sqlite3_stmt* statement = nullptr;
    sqlite3_prepare_v2(database.get(), sql, -1, &statement, nullptr);
    return {statement, sqlite3_finalize};
}

void bindValue(const Statement& statement, int index, const std::string& text) {
    sqlite3_bind_text(statement.get(), index, text.data(), static_cast<int>(text.size()),
                      SQLITE_STATIC);
}

void bindValue(const Statement& statement, int index, std::int64_t value) {
    sqlite3_bind_int64(statement.get(), index, value);
}

template <class... Values>
void insert(const Statement& statement, const Values&... values) {
    int index = 0;
    (bindValue(statement, ++index, values), ...);
    sqlite3_step(statement.get());
    sqlite3_reset(statement.get());
    sqlite3_clear_bindings(statement.get());
}

// Reads every column of every row.
void readRows(const Statement& statement) {
    while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        for (int column = 0; column < sqlite3_column_count(statement.get()); ++column) {
            sqlite3_column_blob(statement.get(), column);
        }
    }
    sqlite3_reset(statement.get());
}

std::vector<std::int64_t> noteIds(const Database& database) {
    std::vector<std::int64_t> ids;
    const Statement rows = prepare(database, "SELECT id FROM notes ORDER BY id");
    while (sqlite3_step(rows.get()) == SQLITE_ROW) {
        ids.push_back(sqlite3_column_int64(rows.get(), 0));
    }
    return ids;
}

void readTwice(const Database& database) {
    readRows(prepare(database, kAllRows));
    const Statement note = prepare(database, kRowsOfNote);
    for (const std::int64_t id : noteIds(database)) {
        bindValue(note, 1, id);
        readRows(note);
    }
}

}  // namespace

void readRowsInOneGo() {
    const Database database = openDatabase();
    execute(database, "BEGIN");
    readTwice(database);
    execute(database, "COMMIT");
}

void readRowsAsAsked() { readTwice(openDatabase()); }

void insertRows(const host::BookRecord& book) {
    host::ReaderStore{host::kReaderDatabasePath};  // creates the tables
    const Database database = openDatabase();
    execute(database, "BEGIN");
    const Statement newBook = prepare(
        database, "INSERT INTO books (id, fast_hash, title, path) VALUES (1, ?, ?, ?)");
    const Statement newNote =
        prepare(database, "INSERT INTO notes (book_id, uuid) VALUES (1, ?)");
    const Statement newTag = prepare(
        database,
        "INSERT INTO tags (note_id, tag, text, timestamp, json) VALUES (?, ?, ?, ?, ?)");
    insert(newBook, book.fastHash, book.title, book.path);
    for (const host::NoteRecord& note : book.notes) {
        insert(newNote, note.uuid);
        const std::int64_t id = sqlite3_last_insert_rowid(database.get());
        for (const host::TagRecord& tag : note.tags) {
            if (tag.json) {
                insert(newTag, id, std::int64_t{tag.tag}, tag.text, tag.timestamp,
                       *tag.json);
            } else {
                insert(newTag, id, std::int64_t{tag.tag}, tag.text, tag.timestamp);
            }
        }
    }
    execute(database, "COMMIT");
}
