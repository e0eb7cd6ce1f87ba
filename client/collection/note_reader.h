// Reads the selected notes of books.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>

#include "client/collection/note.h"
#include "client/collection/note_filter.h"
#include "utilities/reader_db_manager.h"

namespace client {

class NoteReader {
public:
    // `filter` must outlive this object.
    explicit NoteReader(const NoteFilter& filter)
        : filter_(filter), missing_(filter.ids.begin(), filter.ids.end()) {}

    // Calls `visit` with each selected note of the book, in the database's order. Reads one
    // note at a time, because all pictures together may not fit into memory.
    void read(const std::string& bookHash, const std::function<void(const Note&)>& visit);

    // Returns an identifier of the filter that no book so far has; nullopt if there is
    // none.
    std::optional<unsigned long long> missingId() const {
        return missing_.empty() ? std::nullopt : std::optional(*missing_.begin());
    }

private:
    const NoteFilter& filter_;
    std::set<unsigned long long> missing_;
    veloran::utilities::ReaderDbManager readerDb_;
};

}  // namespace client
