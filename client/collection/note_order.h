// The orders that notes are listed and exported in.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "client/collection/reading_order.h"
#include "store/reader_store.h"

namespace client {

enum class NoteOrder { Reading, Id, Newest };

// Returns the notes of the book with this hash; none if there is no such book. Newest gives
// the newest first, and notes of one time in reading order.
std::vector<PlacedNote> notesInOrder(NoteOrder order, const std::string& bookHash,
                                     host::ReaderStore& store);

}  // namespace client
