#include <algorithm>
#include <array>
#include <stdexcept>

#include "store/connection.h"
#include "store/reader_store.h"

namespace host {
namespace {

constexpr const char* kInsertBook =
    "INSERT INTO books (fast_hash, title, path) VALUES (?, ?, ?) "
    "ON CONFLICT (fast_hash) DO NOTHING";
constexpr const char* kInsertNote =
    "INSERT INTO notes (book_id, uuid) VALUES (?, ?) ON CONFLICT (book_id, uuid) DO "
    "NOTHING";
constexpr const char* kFindNote = "SELECT id FROM notes WHERE book_id = ? AND uuid = ?";
// Both skip equal values, because such an update would still write to the file.
constexpr const char* kCorrectBook =
    "UPDATE books SET title = coalesce(nullif(?2, ''), title), path = "
    "coalesce(nullif(?3, ''), path) WHERE fast_hash = ?1 AND "
    "((?2 <> '' AND title <> ?2) OR (?3 <> '' AND path <> ?3))";
constexpr const char* kCompleteBook =
    "UPDATE books SET title = coalesce(nullif(title, ''), ?2), path = "
    "coalesce(nullif(path, ''), ?3) WHERE fast_hash = ?1 AND ((title = '' AND ?2 <> '') OR "
    "(path = '' AND ?3 <> ''))";
constexpr const char* kReplaceTag =
    "REPLACE INTO tags (note_id, tag, text, json, timestamp) VALUES (?, ?, ?, ?, ?)";
constexpr const char* kRemoveTags = "DELETE FROM tags WHERE note_id = ?";
constexpr const char* kRemoveNote = "DELETE FROM notes WHERE id = ?";

// Several tags in one statement take a quarter less time than one statement for each.
constexpr std::size_t kMaxTagsAtOnce = 8;

const char* mergeTagsStatement(std::size_t tags) {
    static const auto statements = [] {
        std::array<std::string, kMaxTagsAtOnce> all;
        std::string rows = "(?, ?, ?, ?, ?)";
        for (std::string& statement : all) {
            statement = "INSERT INTO tags (note_id, tag, text, json, timestamp) VALUES " +
                        rows +
                        " ON CONFLICT (note_id, tag) DO UPDATE SET text = excluded.text, "
                        "json = excluded.json, timestamp = excluded.timestamp "
                        "WHERE excluded.timestamp > tags.timestamp";
            rows += ", (?, ?, ?, ?, ?)";
        }
        return all;
    }();
    return statements[tags - 1].c_str();
}

void checkSize(const NoteRecord& note, const TagRecord& tag) {
    const std::size_t size = std::max(tag.text.size(), tag.json ? tag.json->size() : 0);
    if (size > kMaxValueSize) {
        throw std::runtime_error("tag " + std::to_string(tag.tag) + " of the note " +
                                 note.uuid + " has " + std::to_string(size) +
                                 " bytes; a database takes at most " +
                                 std::to_string(kMaxValueSize));
    }
}

}  // namespace

int ReaderStore::merge(const std::vector<BookRecord>& books) {
    int merged = 0;
    connection_->write([&] {
        for (const BookRecord& book : books) {
            const std::int64_t bookId = mergeBook(book);
            for (const NoteRecord& note : book.notes) {
                merged += mergeNote(bookId, note).changed ? 1 : 0;
            }
        }
    });
    return merged;
}

void ReaderStore::inWriteTransaction(const std::function<void()>& work) {
    connection_->write(work);
}

std::int64_t ReaderStore::putBook(const BookRecord& book, OnKnownBook known) {
    const std::int64_t bookId = mergeBook(book);
    const char* update = known == OnKnownBook::Overwrite ? kCorrectBook : kCompleteBook;
    connection_->query(update, book.fastHash, book.title, book.path).run();
    return bookId;
}

std::int64_t ReaderStore::mergeBook(const BookRecord& book) {
    connection_->query(kInsertBook, book.fastHash, book.title, book.path).run();
    return findBook(book.fastHash).value().id;
}

MergedNote ReaderStore::mergeNote(std::int64_t bookId, const NoteRecord& note) {
    const bool isNew = connection_->query(kInsertNote, bookId, note.uuid).run() > 0;
    const std::int64_t noteId =
        isNew ? connection_->lastInsertedId() : findNote(bookId, note.uuid).value();
    const std::size_t taken = mergeTags(noteId, note);
    return {noteId, isNew || taken > 0, taken == note.tags.size()};
}

std::optional<std::int64_t> ReaderStore::findNote(std::int64_t bookId,
                                                  const std::string& uuid) {
    Query row = connection_->query(kFindNote, bookId, uuid);
    return row.next() ? std::optional(row.integer(0)) : std::nullopt;
}

std::size_t ReaderStore::mergeTags(std::int64_t noteId, const NoteRecord& note) {
    std::size_t taken = 0;
    for (std::size_t first = 0; first < note.tags.size(); first += kMaxTagsAtOnce) {
        const std::size_t end = std::min(first + kMaxTagsAtOnce, note.tags.size());
        Query statement = connection_->query(mergeTagsStatement(end - first));
        for (std::size_t index = first; index < end; ++index) {
            const TagRecord& tag = note.tags[index];
            checkSize(note, tag);
            statement.bind(noteId, std::int64_t{tag.tag}, Blob{tag.text}, tag.json,
                           tag.timestamp);
        }
        taken += static_cast<std::size_t>(statement.run());
    }
    return taken;
}

void ReaderStore::replaceTag(std::int64_t noteId, const TagRecord& tag) {
    Query statement = connection_->query(kReplaceTag);
    statement.bind(noteId, std::int64_t{tag.tag}, Blob{tag.text}, tag.json, tag.timestamp);
    statement.run();
}

void ReaderStore::removeTags(std::int64_t noteId) {
    connection_->query(kRemoveTags, noteId).run();
}

void ReaderStore::removeNote(std::int64_t noteId) {
    removeTags(noteId);
    connection_->query(kRemoveNote, noteId).run();
}

}  // namespace host
