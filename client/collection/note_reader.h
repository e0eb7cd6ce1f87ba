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
        : filter_(filter),
          missingIds_(filter.ids.begin(), filter.ids.end()),
          missingColors_(filter.colors.begin(), filter.colors.end()) {}

    const NoteFilter& filter() const { return filter_; }

    // Calls `visit` with each selected note of the book, in the database's order. Reads one
    // note at a time, because all pictures together may not fit into memory.
    void read(const std::string& bookHash, const std::function<void(const Note&)>& visit);

    // Returns an identifier of the filter that no book so far has; nullopt if there is
    // none.
    std::optional<unsigned long long> missingId() const {
        return missingIds_.empty() ? std::nullopt : std::optional(*missingIds_.begin());
    }

    // Throws UserError if there is such an identifier, or if a filter with conditions has
    // selected no note so far; the message names a colour that no note has.
    void requireFound() const;

private:
    const NoteFilter& filter_;
    std::set<unsigned long long> missingIds_;
    std::set<std::string> missingColors_;
    bool isAnySelected_ = false;
    veloran::utilities::ReaderDbManager readerDb_;
};

}  // namespace client
