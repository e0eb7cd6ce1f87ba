#include "utilities/reader_db_manager.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>

#include "dump/note_json.h"
#include "store/database_paths.h"
#include "store/note_prefetch.h"
#include "store/note_tags.h"
#include "store/reader_store.h"

namespace veloran::utilities {

struct Sqlite::Connection {
    host::ReaderStore store{host::kReaderDatabasePath};
    host::NoteJson json;
    host::NotePrefetch notes;
};

void Sqlite::close() {
    delete handle_;
    handle_ = nullptr;
}

namespace {

Sqlite::Connection& connected(Sqlite& connection) {
    if (connection.handle() == nullptr) {
        connection.setHandle(new Sqlite::Connection);
    }
    return *connection.handle();
}

// Returns the identifier in a note's key; 0, which no note has, if the key is not a number.
std::int64_t noteIdOf(const std::string& key) {
    std::int64_t id = 0;
    const char* end = key.data() + key.size();
    return std::from_chars(key.data(), end, id).ptr == end ? id : 0;
}

// Returns the store for queries by book hash. Queries by identifier use the file that the
// identifier came from.
host::ReaderStore& currentStore(Sqlite& connection) {
    host::ReaderStore& store = connected(connection).store;
    store.reopenIfReplaced();
    return store;
}

std::time_t toTime(std::int64_t seconds) {
    using Limits = std::numeric_limits<std::time_t>;
    return static_cast<std::time_t>(
        std::clamp<std::int64_t>(seconds, Limits::min(), Limits::max()));
}

void setTag(Note& note, host::TagRecord& record, host::NoteJson& json) {
    Note::Value& value = note.tags[Note::Tag{record.tag}];
    value.str = std::move(record.text);
    // The JSON of other tags is not used; parsed, it may take a hundred times the memory of
    // its text.
    if (record.json && (record.tag == host::kAnchorTag || record.tag == host::kRangeTag)) {
        value.json = json.parse(*record.json);
    }
    value.timestamp = toTime(record.timestamp);
}

// Adds the uuid tag if the note was stored without it.
void setUuid(Note& note, const std::string& uuid) {
    const auto [tag, added] = note.tags.try_emplace(Note::Tag::Uuid);
    if (added) {
        tag->second.str = uuid;
        tag->second.timestamp = 0;
    }
}

}  // namespace

ReaderDbManager::ReaderDbManager() = default;

long long ReaderDbManager::getItemId(const std::string& bookHash) {
    const auto book = currentStore(connection_).findBook(bookHash);
    return book ? book->id : -1;
}

std::vector<Book> ReaderDbManager::getBookByFastHash(const std::string& bookHash) {
    const auto entry = currentStore(connection_).findBook(bookHash);
    if (!entry) {
        return {};
    }
    Book book;
    book.unread1 = entry->id;
    book.title = entry->title;
    book.path = entry->path;
    return {book};
}

std::string ReaderDbManager::getBookFastHashById(long long itemId) {
    const auto book = connected(connection_).store.findBook(std::int64_t{itemId});
    return book ? book->fastHash : std::string();
}

std::vector<std::pair<std::string, unsigned long long>>
ReaderDbManager::getBookNotesHashUUIDs(const std::string& bookHash, bool /*flag*/) {
    std::vector<std::pair<std::string, unsigned long long>> keys;
    host::ReaderStore& store = currentStore(connection_);
    std::vector<std::int64_t> ids;
    if (const auto book = store.findBook(bookHash)) {
        ids = store.noteIds(book->id);
        for (const std::int64_t id : ids) {
            keys.emplace_back(std::to_string(id), static_cast<unsigned long long>(id));
        }
    }
    connected(connection_).notes.expect(std::move(ids));
    return keys;
}

Note ReaderDbManager::getNote(const std::string& noteKey) {
    const std::int64_t id = noteIdOf(noteKey);
    Note note;
    Sqlite::Connection& connection = connected(connection_);
    if (auto record = connection.notes.take(connection.store, id)) {
        for (host::TagRecord& tag : record->tags) {
            setTag(note, tag, connection.json);
        }
        setUuid(note, record->uuid);
        note.noteId = static_cast<unsigned long long>(id);
    }
    return note;
}

}  // namespace veloran::utilities
