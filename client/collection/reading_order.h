// The order of a book's notes for a reader.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "client/collection/note.h"

namespace client {

struct PlacedNote {
    std::int64_t id = 0;  // in the collection
    std::string uuid;
    std::int64_t time = 0;
    Place place;
};

// Sorts all notes of a book. If any note has a location, locations decide, and notes with a
// page alone follow by page. Otherwise orders decide if all placed notes have one of the
// same kind, else pages. A note without such a place follows the one that was made before
// it. Notes at one place are ordered by time, then by uuid.
void sortForReading(std::vector<PlacedNote>& notes);

// Returns whether the library, which orders notes by the number that it shows for them,
// orders these alike.
bool isPageOrder(const std::vector<PlacedNote>& notes);

}  // namespace client
