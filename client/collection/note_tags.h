// Conversion between notes and the tags of the databases.
#pragma once

#include "client/collection/note.h"
#include "store/records.h"
#include "utilities/note.h"

namespace client {

host::NoteRecord toRecord(Note note);

Note toNote(const veloran::utilities::Note& tags);

}  // namespace client
