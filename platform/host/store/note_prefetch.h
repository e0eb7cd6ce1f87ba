// Reads notes of a book before they are requested.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "store/reader_store.h"

namespace host {

// Returns notes in the order of a list of identifiers. Locking the database for each note
// doubles the time, so it is locked for as many notes as fit into a fixed amount of memory.
// Each is returned once; a second request reads the database.
class NotePrefetch {
public:
    // Drops the notes that were read, and expects requests for these.
    void expect(std::vector<std::int64_t> ids);

    // Returns the note with this identifier, as it was at expect() or later.
    std::optional<NoteRecord> take(ReaderStore& store, std::int64_t id);

private:
    void read(ReaderStore& store);

    std::vector<std::int64_t> ids_;
    std::size_t next_ = 0;  // index of the next expected note
    std::deque<std::optional<NoteRecord>> notes_;
};

}  // namespace host
