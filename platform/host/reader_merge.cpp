#include "connection.h"
#include "reader_store.h"

namespace host {
namespace {

constexpr const char* kInsertBook =
    "INSERT INTO books (fast_hash, title, path) VALUES (?, ?, ?) "
    "ON CONFLICT (fast_hash) DO NOTHING";
constexpr const char* kInsertNote =
    "INSERT INTO notes (book_id, uuid) VALUES (?, ?) ON CONFLICT (book_id, uuid) DO "
    "NOTHING";
constexpr const char* kFindNote = "SELECT id FROM notes WHERE book_id = ? AND uuid = ?";
constexpr const char* kMergeTag =
    "INSERT INTO tags (note_id, tag, text, json, timestamp) VALUES (?, ?, ?, ?, ?) "
    "ON CONFLICT (note_id, tag) DO UPDATE "
    "SET text = excluded.text, json = excluded.json, timestamp = excluded.timestamp "
    "WHERE excluded.timestamp > tags.timestamp";

}  // namespace

int ReaderStore::merge(const std::vector<BookRecord>& books) {
    int merged = 0;
    connection_->write([&] {
        for (const BookRecord& book : books) {
            const std::int64_t bookId = mergeBook(book);
            for (const NoteRecord& note : book.notes) {
                merged += mergeNote(bookId, note) ? 1 : 0;
            }
        }
    });
    return merged;
}

std::int64_t ReaderStore::mergeBook(const BookRecord& book) {
    connection_->query(kInsertBook, book.fastHash, book.title, book.path).run();
    return findBook(book.fastHash).value().id;
}

bool ReaderStore::mergeNote(std::int64_t bookId, const NoteRecord& note) {
    bool changed = connection_->query(kInsertNote, bookId, note.uuid).run() > 0;
    const std::int64_t noteId =
        changed ? connection_->lastInsertedId() : findNote(bookId, note.uuid);
    for (const TagRecord& tag : note.tags) {
        changed = mergeTag(noteId, tag) || changed;
    }
    return changed;
}

std::int64_t ReaderStore::findNote(std::int64_t bookId, const std::string& uuid) {
    Query row = connection_->query(kFindNote, bookId, uuid);
    row.next();
    return row.integer(0);
}

bool ReaderStore::mergeTag(std::int64_t noteId, const TagRecord& tag) {
    const std::int64_t number = tag.tag;
    return connection_
               ->query(kMergeTag, noteId, number, Blob{tag.text}, tag.json, tag.timestamp)
               .run() > 0;
}

}  // namespace host
