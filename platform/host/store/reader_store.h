// The reader database: books, and the notes made in them.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/records.h"

namespace host {

class Connection;

// A book in the database.
struct BookEntry {
    std::int64_t id = 0;
    std::string fastHash;
    std::string title;
    std::string path;
};

// A note without its content.
struct NoteOutline {
    std::int64_t id = 0;
    std::string uuid;
    std::int64_t time = 0;              // when it was made; 0 if not known
    std::optional<std::string> anchor;  // JSON text
    std::optional<std::string> range;   // also; none if the anchor is "book:/position?…"
};

struct MergedNote {
    std::int64_t id = 0;
    bool changed = false;   // in any way
    bool complete = false;  // every tag was taken over
};

// A connection to the database; serves one thread at a time. Every failure is
// std::bad_alloc or a std::runtime_error that names the file and the cause.
class ReaderStore {
public:
    // Opens the database at `path`, and creates it and its directories if they are missing.
    explicit ReaderStore(const std::string& path);
    ~ReaderStore();
    ReaderStore(const ReaderStore&) = delete;
    ReaderStore& operator=(const ReaderStore&) = delete;

    // Reopens the database if its file was replaced. Row identifiers of the old file are
    // not valid in the new one.
    void reopenIfReplaced();

    // Returns all books, ordered by fast hash.
    std::vector<BookEntry> books();

    std::optional<BookEntry> findBook(const std::string& fastHash);
    std::optional<BookEntry> findBook(std::int64_t id);

    // Returns the identifiers of a book's notes, ascending.
    std::vector<std::int64_t> noteIds(std::int64_t bookId);

    // Returns them ordered by the notes' creation, then by uuid.
    std::vector<std::int64_t> noteIdsByCreation(std::int64_t bookId);

    // Returns the outlines of a book's notes, ordered by identifier.
    std::vector<NoteOutline> outlines(std::int64_t bookId);

    // Returns the note with all its tags, ordered by number; nullopt if there is none.
    std::optional<NoteRecord> note(std::int64_t noteId);

    // Returns the identifier of the book's note with this uuid; nullopt if there is none.
    std::optional<std::int64_t> findNote(std::int64_t bookId, const std::string& uuid);

    // Returns all records. Equal contents give equal records, independent of row
    // identifiers.
    std::vector<BookRecord> records();

    // Calls `work`, whose reads through this object all see one state of the database.
    void inReadTransaction(const std::function<void()>& work);

    // Adds the records in one transaction. A book is matched by its fast hash and keeps its
    // title and path, a note by its uuid within the book. Of each tag the newer timestamp
    // stays, the present one in a tie. Nothing is deleted. Returns the number of notes
    // added or changed; if that is 0 and no book is new, nothing is written. Throws if the
    // database cannot be written, or if a hash or uuid is empty; the database is then
    // unchanged.
    int merge(const std::vector<BookRecord>& books);

    // The functions below are the steps of a load. Each changes the database at once,
    // unless `work` of inWriteTransaction() calls it.

    // Makes everything that `work` does through this object one transaction.
    void inWriteTransaction(const std::function<void()>& work);

    // Adds the book, unless its hash is known; then `known` says how title and path change.
    // Returns its identifier.
    std::int64_t putBook(const BookRecord& book, OnKnownBook known);

    // Adds the note, or merges its tags as merge() does.
    MergedNote mergeNote(std::int64_t bookId, const NoteRecord& note);

    // Replaces the tag with this number, whatever its time.
    void replaceTag(std::int64_t noteId, const TagRecord& tag);

    // Removes the note's tags; removeNote() also removes the note.
    void removeTags(std::int64_t noteId);
    void removeNote(std::int64_t noteId);

private:
    std::int64_t mergeBook(const BookRecord& book);
    std::size_t mergeTags(std::int64_t noteId, const NoteRecord& note);  // taken over

    std::unique_ptr<Connection> connection_;
};

}  // namespace host
