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
    "UPDATE books SET title = ?2, path = ?3 WHERE fast_hash = ?1 AND (title, path) IS NOT "
    "(?2, ?3)";
constexpr const char* kCompleteBook =
    "UPDATE books SET title = coalesce(nullif(title, ''), ?2), path = "
    "coalesce(nullif(path, ''), ?3) WHERE fast_hash = ?1 AND ((title = '' AND ?2 <> '') OR "
    "(path = '' AND ?3 <> ''))";
constexpr const char* kFindOtherTag =
    "SELECT 1 FROM tags WHERE note_id = ? AND tag = ? AND (text, json) IS NOT (?, ?)";

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

LoadResult ReaderStore::load(const std::vector<BookRecord>& books, OnKnownBook known) {
    LoadResult result;
    connection_->write([&] {
        for (const BookRecord& book : books) {
            loadBook(book, known, result);
        }
    });
    return result;
}

void ReaderStore::loadBook(const BookRecord& book, OnKnownBook known, LoadResult& result) {
    const std::int64_t bookId = mergeBook(book);
    const char* update = known == OnKnownBook::Overwrite ? kCorrectBook : kCompleteBook;
    connection_->query(update, book.fastHash, book.title, book.path).run();
    for (const NoteRecord& incoming : book.notes) {
        const Merged merged = mergeNote(bookId, incoming);
        result.changed += merged.changed ? 1 : 0;
        if (!merged.complete && differs(bookId, incoming)) {
            result.kept.push_back({book.fastHash, book.title, incoming.uuid});
        }
    }
}

std::int64_t ReaderStore::mergeBook(const BookRecord& book) {
    connection_->query(kInsertBook, book.fastHash, book.title, book.path).run();
    return findBook(book.fastHash).value().id;
}

ReaderStore::Merged ReaderStore::mergeNote(std::int64_t bookId, const NoteRecord& note) {
    const bool isNew = connection_->query(kInsertNote, bookId, note.uuid).run() > 0;
    const std::int64_t noteId =
        isNew ? connection_->lastInsertedId() : findNote(bookId, note.uuid);
    const std::size_t taken = mergeTags(noteId, note);
    return {isNew || taken > 0, taken == note.tags.size()};
}

std::int64_t ReaderStore::findNote(std::int64_t bookId, const std::string& uuid) {
    Query row = connection_->query(kFindNote, bookId, uuid);
    row.next();
    return row.integer(0);
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

bool ReaderStore::differs(std::int64_t bookId, const NoteRecord& note) {
    const std::int64_t noteId = findNote(bookId, note.uuid);
    return std::any_of(note.tags.begin(), note.tags.end(), [&](const TagRecord& tag) {
        const std::int64_t number = tag.tag;
        return connection_->query(kFindOtherTag, noteId, number, Blob{tag.text}, tag.json)
            .next();
    });
}

}  // namespace host
