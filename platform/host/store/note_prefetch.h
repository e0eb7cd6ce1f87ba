// Notes of a book, read before they are asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "store/reader_store.h"

namespace host {

// Serves notes in the order of a list of identifiers. A database that is locked for each
// note takes twice as long to read; it is locked here for as many as a fixed amount of
// memory holds. Each note is handed out once, so that who asks again gets it as it is then.
class NotePrefetch {
public:
    // Forgets the notes that were read, and expects to be asked for these.
    void expect(std::vector<std::int64_t> ids);

    // The note with this identifier, as it was when the identifiers were expected or later.
    std::optional<NoteRecord> take(ReaderStore& store, std::int64_t id);

private:
    void read(ReaderStore& store);

    std::vector<std::int64_t> ids_;
    std::size_t next_ = 0;  // place of the note that is expected next
    std::deque<std::optional<NoteRecord>> notes_;
};

}  // namespace host
