// The results and the recorded calls of the scripted platform.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "utilities/note.h"
#include "utilities/reader_db_manager.h"

namespace scripted {

struct LibraryBook {
    std::string title;
    std::string author;
    std::string path = {};
};

// Results are data, and follow the seam's contract unless a test breaks it. Each test
// starts with a new script: `script() = {}`.
struct Script {
    // Library database
    std::map<std::string, long long> bookIdsByUid;  // by raw bytes
    std::map<long long, LibraryBook> booksOfLibrary;

    // Reader database
    std::map<std::string, long long> itemIds;  // by book hash, like the next two
    std::map<std::string, std::vector<veloran::utilities::Book>> readerBooks;
    std::map<std::string, std::vector<std::string>> noteKeys;
    std::map<std::string, veloran::utilities::Note> notes;  // by note key
    std::map<long long, std::string> fastHashes;            // by item identifier
    std::map<std::string, double> pages;                    // by position URI

    // Import/export engine
    bool exportSucceeds = true;
    std::string payload;
    std::optional<std::string> base64;  // replaces the Base64 of all bytes
    int importResult = 0;

    // Files
    std::set<std::string> existing;  // paths, in addition to files on disk
    std::string hashText;            // of every readable file
    std::optional<int> hashResult;   // replaces the length of `hashText`

    // Every call in order, as text. Each call then calls `onCall` and passes its exceptions
    // on. Destructors and close(), which must not fail, are only recorded.
    std::vector<std::string> calls;
    std::function<void(const std::string& call)> onCall;

    int openHandles = 0;  // connections and databases
};

inline Script& script() {
    static Script instance;
    return instance;
}

inline void recordRelease(const std::string& release) { script().calls.push_back(release); }

template <class... Arguments>
void recordCall(const std::string& function, const Arguments&... arguments) {
    std::ostringstream call;
    call << std::boolalpha << function << '(';
    [[maybe_unused]] const char* separator = "";
    ((call << std::exchange(separator, ", ") << arguments), ...);
    call << ')';
    script().calls.push_back(call.str());
    if (script().onCall) {
        script().onCall(call.str());
    }
}

// Returns the entry under `key`, or `none`.
template <class Map>
typename Map::mapped_type found(const Map& map, const typename Map::key_type& key,
                                typename Map::mapped_type none = {}) {
    const auto entry = map.find(key);
    return entry == map.end() ? none : entry->second;
}

struct NoteFields {
    unsigned long long id;
    std::string uuid = {};
    std::string color = {};
    std::string text = {};
    std::string image = {};
    std::string comment = {};
    std::string anchor = {};  // URI of the note's position
    std::string begin = {};   // URI of the start of the passage
};

// Appends a note with these fields to the book, under the key "key-ID".
void addNote(const std::string& bookHash, const NoteFields& fields);

}  // namespace scripted
