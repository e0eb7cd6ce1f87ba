#include "store/reader_store.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <tuple>

#include "store/connection.h"
#include "store/note_tags.h"

namespace host {
namespace {

// References are not enforced, because a merge refers only to rows that it has just made or
// found, and checking them would take 8 % of an import.
//
// The tags have row identifiers, because pictures are far larger than a page.
constexpr Schema kSchema = {1, R"(
    CREATE TABLE books (
        id INTEGER PRIMARY KEY,
        fast_hash TEXT NOT NULL UNIQUE CHECK (fast_hash <> ''),
        title TEXT NOT NULL,
        path TEXT NOT NULL);
    CREATE TABLE notes (
        id INTEGER PRIMARY KEY,
        book_id INTEGER NOT NULL REFERENCES books (id),
        uuid TEXT NOT NULL CHECK (uuid <> ''),
        UNIQUE (book_id, uuid));
    CREATE TABLE tags (
        note_id INTEGER NOT NULL REFERENCES notes (id),
        tag INTEGER NOT NULL,
        text BLOB NOT NULL,
        json TEXT,
        timestamp INTEGER NOT NULL,
        PRIMARY KEY (note_id, tag));
)"};

BookEntry bookEntry(Query& row) {
    return {row.integer(0), row.bytes(1), row.bytes(2), row.bytes(3)};
}

std::optional<BookEntry> firstBook(Query&& rows) {
    if (!rows.next()) {
        return std::nullopt;
    }
    return bookEntry(rows);
}

std::vector<std::int64_t> identifiers(Query&& rows) {
    std::vector<std::int64_t> ids;
    while (rows.next()) {
        ids.push_back(rows.integer(0));
    }
    return ids;
}

std::optional<std::string> optionalBytes(Query& row, int column) {
    return row.isNull(column) ? std::nullopt : std::optional(row.bytes(column));
}

TagRecord tagRecord(Query& row) {
    TagRecord record;
    const std::int64_t number = row.integer(1);
    record.tag = static_cast<std::int32_t>(number);
    if (record.tag != number) {  // it would replace another tag
        throw std::runtime_error("the note " + row.bytes(0) + " has a tag " +
                                 std::to_string(number) + ", which does not fit 32 bits");
    }
    record.text = row.bytes(2);
    record.json = optionalBytes(row, 3);
    record.timestamp = row.integer(4);
    return record;
}

}  // namespace

ReaderStore::ReaderStore(const std::string& path)
    : connection_(std::make_unique<Connection>(path, kSchema)) {}

ReaderStore::~ReaderStore() = default;

void ReaderStore::reopenIfReplaced() {
    if (connection_->isReplaced()) {
        connection_ = std::make_unique<Connection>(connection_->file(), kSchema);
    }
}

std::vector<BookEntry> ReaderStore::books() {
    Query rows = connection_->query(
        "SELECT id, fast_hash, title, path FROM books ORDER BY fast_hash");
    std::vector<BookEntry> found;
    while (rows.next()) {
        found.push_back(bookEntry(rows));
    }
    return found;
}

std::optional<BookEntry> ReaderStore::findBook(const std::string& fastHash) {
    return firstBook(connection_->query(
        "SELECT id, fast_hash, title, path FROM books WHERE fast_hash = ?", fastHash));
}

std::optional<BookEntry> ReaderStore::findBook(std::int64_t id) {
    return firstBook(connection_->query(
        "SELECT id, fast_hash, title, path FROM books WHERE id = ?", id));
}

std::vector<std::int64_t> ReaderStore::noteIds(std::int64_t bookId) {
    return identifiers(
        connection_->query("SELECT id FROM notes WHERE book_id = ? ORDER BY id", bookId));
}

std::vector<std::int64_t> ReaderStore::noteIdsByCreation(std::int64_t bookId) {
    // The notes are read in file order, next to their tags. In the order of the index, by
    // uuid, each would be on another page.
    Query rows = connection_->query(
        "SELECT id, uuid, timestamp FROM notes LEFT JOIN tags ON note_id = id AND tag = ? "
        "WHERE book_id = ? ORDER BY id",
        std::int64_t{kUuidTag}, bookId);
    using Creation = std::tuple<std::optional<std::int64_t>, std::string, std::int64_t>;
    std::vector<Creation> notes;
    while (rows.next()) {
        const auto time = rows.isNull(2) ? std::nullopt : std::optional(rows.integer(2));
        notes.emplace_back(time, rows.bytes(1), rows.integer(0));
    }
    std::sort(notes.begin(), notes.end());
    std::vector<std::int64_t> ids(notes.size());
    std::transform(notes.begin(), notes.end(), ids.begin(),
                   [](const Creation& note) { return std::get<std::int64_t>(note); });
    return ids;
}

// Looks for few ranges, because each takes a third of the time.
std::vector<NoteOutline> ReaderStore::outlines(std::int64_t bookId) {
    Query rows = connection_->query(
        "SELECT id, uuid, made.timestamp, anchor.json, "
        "CASE WHEN anchor.json GLOB '{\"anchor\":\"book:/position[?]*' THEN NULL ELSE "
        "(SELECT json FROM tags WHERE note_id = id AND tag = ?) END FROM notes "
        "LEFT JOIN tags AS made ON made.note_id = id AND made.tag = ? "
        "LEFT JOIN tags AS anchor ON anchor.note_id = id AND anchor.tag = ? "
        "WHERE book_id = ? ORDER BY id",
        std::int64_t{kRangeTag}, std::int64_t{kUuidTag}, std::int64_t{kAnchorTag}, bookId);
    std::vector<NoteOutline> notes;
    while (rows.next()) {
        notes.push_back({rows.integer(0), rows.bytes(1), rows.integer(2),
                         optionalBytes(rows, 3), optionalBytes(rows, 4)});
    }
    return notes;
}

std::optional<NoteRecord> ReaderStore::note(std::int64_t noteId) {
    // A note without tags still has one row, whose tag is null.
    Query rows = connection_->query(
        "SELECT uuid, tag, text, json, timestamp FROM notes LEFT JOIN tags ON note_id = id "
        "WHERE id = ? ORDER BY tag",
        noteId);
    std::optional<NoteRecord> record;
    while (rows.next()) {
        if (!record) {
            record.emplace().uuid = rows.bytes(0);
            record->tags.reserve(8);  // seven tags are in use
        }
        if (!rows.isNull(1)) {
            record->tags.push_back(tagRecord(rows));
        }
    }
    return record;
}

std::vector<BookRecord> ReaderStore::records() {
    std::vector<BookRecord> all;
    inReadTransaction([&] {
        for (BookEntry& book : books()) {
            all.push_back({book.fastHash, book.title, book.path, {}});
            for (const std::int64_t id : noteIdsByCreation(book.id)) {
                all.back().notes.push_back(note(id).value());
            }
        }
    });
    return all;
}

void ReaderStore::inReadTransaction(const std::function<void()>& work) {
    connection_->read(work);
}

}  // namespace host
