#include "store/library_store.h"

#include <filesystem>

#include "store/connection.h"

namespace host {
namespace {

constexpr Schema kSchema = {1, R"(
    CREATE TABLE books (
        id INTEGER PRIMARY KEY,
        fast_hash BLOB NOT NULL UNIQUE CHECK (fast_hash <> x''),
        title TEXT NOT NULL,
        author TEXT NOT NULL,
        path TEXT NOT NULL);
    CREATE TABLE file_props (
        fast_hash TEXT NOT NULL,
        prop INTEGER NOT NULL,
        value TEXT NOT NULL,
        PRIMARY KEY (fast_hash, prop)) WITHOUT ROWID;
)"};

constexpr const char* kPutBook =
    "INSERT INTO books (fast_hash, title, author, path) VALUES (?, ?, ?, ?) "
    "ON CONFLICT (fast_hash) DO UPDATE "
    "SET title = coalesce(nullif(excluded.title, ''), title), "
    "author = coalesce(nullif(excluded.author, ''), author), "
    "path = coalesce(nullif(excluded.path, ''), path)";
constexpr const char* kCompleteBook =
    "INSERT INTO books (fast_hash, title, author, path) VALUES (?, ?, ?, ?) "
    "ON CONFLICT (fast_hash) DO UPDATE "
    "SET title = coalesce(nullif(title, ''), excluded.title), "
    "author = coalesce(nullif(author, ''), excluded.author), "
    "path = coalesce(nullif(path, ''), excluded.path)";
constexpr const char* kPutProp =
    "INSERT INTO file_props (fast_hash, prop, value) VALUES (?, ?, ?) "
    "ON CONFLICT (fast_hash, prop) DO UPDATE SET value = excluded.value";

}  // namespace

LibraryStore::LibraryStore(const std::string& path)
    : connection_(std::make_unique<Connection>(path, kSchema)) {}

LibraryStore::~LibraryStore() = default;

bool LibraryStore::isAt(const std::string& path) const {
    return std::filesystem::absolute(path) == connection_->file() &&
           !connection_->isReplaced();
}

void LibraryStore::putBook(const LibraryBook& book) {
    putBooks({book}, OnKnownBook::Overwrite);
}

void LibraryStore::putBooks(const std::vector<LibraryBook>& books, OnKnownBook known) {
    const char* put = known == OnKnownBook::Overwrite ? kPutBook : kCompleteBook;
    connection_->write([&] {
        for (const LibraryBook& book : books) {
            connection_->query(put, Blob{book.fastHash}, book.title, book.author, book.path)
                .run();
        }
    });
}

std::optional<std::int64_t> LibraryStore::findBook(const std::string& fastHash) {
    Query row =
        connection_->query("SELECT id FROM books WHERE fast_hash = ?", Blob{fastHash});
    if (!row.next()) {
        return std::nullopt;
    }
    return row.integer(0);
}

std::optional<LibraryBook> LibraryStore::book(std::int64_t id) {
    Query row = connection_->query(
        "SELECT fast_hash, title, author, path FROM books WHERE id = ?", id);
    if (!row.next()) {
        return std::nullopt;
    }
    return LibraryBook{row.bytes(0), row.bytes(1), row.bytes(2), row.bytes(3)};
}

void LibraryStore::setFileProp(const std::string& hash, int prop,
                               const std::string& value) {
    connection_->query(kPutProp, hash, std::int64_t{prop}, value).run();
}

std::optional<std::string> LibraryStore::fileProp(const std::string& hash, int prop) {
    Query row =
        connection_->query("SELECT value FROM file_props WHERE fast_hash = ? AND prop = ?",
                           hash, std::int64_t{prop});
    if (!row.next()) {
        return std::nullopt;
    }
    return row.bytes(0);
}

void LibraryStore::inWriteTransaction(const std::function<void()>& work) {
    connection_->write(work);
}

}  // namespace host
