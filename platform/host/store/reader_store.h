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

// A book as the database keeps it.
struct BookEntry {
    std::int64_t id = 0;
    std::string fastHash;
    std::string title;
    std::string path;
};

// A note that the device keeps although the loaded one is another.
struct KeptNote {
    std::string fastHash;  // of its book
    std::string title;     // of its book
    std::string uuid;
};

struct LoadResult {
    int changed = 0;  // notes added or changed
    std::vector<KeptNote> kept;
};

// One connection to the database; serves one thread at a time. Every failure is an
// exception of the std::runtime_error family that names the file and what is wrong with it,
// but for std::bad_alloc.
class ReaderStore {
public:
    // Opens the database at `path`, creating it, and the directories to it, when missing.
    explicit ReaderStore(const std::string& path);
    ~ReaderStore();
    ReaderStore(const ReaderStore&) = delete;
    ReaderStore& operator=(const ReaderStore&) = delete;

    // Opens the database again when its file was replaced. Row identifiers of the old file
    // are not valid in the new one.
    void reopenIfReplaced();

    // All books, by fast hash.
    std::vector<BookEntry> books();

    std::optional<BookEntry> findBook(const std::string& fastHash);
    std::optional<BookEntry> findBook(std::int64_t id);

    // The identifiers of a book's notes, ascending.
    std::vector<std::int64_t> noteIds(std::int64_t bookId);

    // The same in an order that does not depend on them: by the notes' creation, then uuid.
    std::vector<std::int64_t> noteIdsByCreation(std::int64_t bookId);

    // The note with all its tags, by tag number.
    std::optional<NoteRecord> note(std::int64_t noteId);

    // Everything the database holds. Equal contents give equal records, whatever the row
    // identifiers are.
    std::vector<BookRecord> records();

    // Makes everything that `work` reads through this object belong to one state of the
    // database.
    void inReadTransaction(const std::function<void()>& work);

    // Adds the records in one transaction. A book is matched by its fast hash and keeps the
    // title and path it has, a note by its uuid within the book; of each tag the newer
    // timestamp stays, the present one in a tie. Nothing is deleted.
    // Returns how many notes were added or changed; when that is none and no book is new,
    // nothing is written. Throws when the database cannot be written, or when a hash or
    // uuid is empty; the database is then as it was.
    int merge(const std::vector<BookRecord>& books);

    // The same, but a known book gets the title and path of its record as `known` says.
    // Tells of each note that has a tag whose text or JSON remains another than its
    // record's.
    LoadResult load(const std::vector<BookRecord>& books, OnKnownBook known);

private:
    std::int64_t mergeBook(const BookRecord& book);
    void loadBook(const BookRecord& book, OnKnownBook known, LoadResult& result);
    struct Merged {
        bool changed;   // the note, in any way
        bool complete;  // every tag was taken over
    };
    Merged mergeNote(std::int64_t bookId, const NoteRecord& note);
    std::int64_t findNote(std::int64_t bookId, const std::string& uuid);
    std::size_t mergeTags(std::int64_t noteId, const NoteRecord& note);  // taken over
    bool differs(std::int64_t bookId, const NoteRecord& note);

    std::unique_ptr<Connection> connection_;
};

}  // namespace host
