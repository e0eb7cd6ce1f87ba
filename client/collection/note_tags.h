// Conversion between notes and the tags of the databases.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "client/collection/note.h"
#include "store/records.h"

namespace client {

host::NoteRecord toRecord(Note note);

Note toNote(std::int64_t id, host::NoteRecord record);

// Returns the position in a tag that toRecord() wrote; empty if it is of another form.
std::string positionIn(const host::TagRecord& tag);

// Returns the place in the anchor, or else in the range, as the page shows it.
Place placeIn(const std::optional<std::string>& anchor,
              const std::optional<std::string>& range);

}  // namespace client
