// Reads the selected notes of books in an order.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "client/collection/note.h"
#include "client/collection/note_filter.h"
#include "client/collection/note_order.h"
#include "store/database_paths.h"
#include "store/reader_store.h"

namespace client {

class NoteReader {
public:
    // `filter` must outlive this object.
    NoteReader(const NoteFilter& filter, NoteOrder order)
        : filter_(filter),
          order_(order),
          missingIds_(filter.ids.begin(), filter.ids.end()),
          missingColors_(filter.colors.begin(), filter.colors.end()) {}

    const NoteFilter& filter() const { return filter_; }
    NoteOrder order() const { return order_; }

    // Returns all notes of the book in order, without their contents.
    std::vector<PlacedNote> inOrder(const std::string& bookHash);

    // Calls `visit` with each selected note among these. Reads few notes at a time, because
    // all pictures together may not fit into memory.
    void read(const std::vector<PlacedNote>& notes,
              const std::function<void(const Note&)>& visit);

    // Returns an identifier of the filter that no book so far has; nullopt if there is
    // none.
    std::optional<unsigned long long> missingId() const {
        return missingIds_.empty() ? std::nullopt : std::optional(*missingIds_.begin());
    }

    // Throws UserError if there is such an identifier, or if a filter with conditions has
    // selected no note so far; the message names a colour that no note has.
    void requireFound() const;

private:
    void visitIfSelected(const Note& note, const std::function<void(const Note&)>& visit);

    const NoteFilter& filter_;
    const NoteOrder order_;
    std::set<unsigned long long> missingIds_;
    std::set<std::string> missingColors_;
    bool isAnySelected_ = false;
    host::ReaderStore store_{host::kReaderDatabasePath};
};

}  // namespace client
