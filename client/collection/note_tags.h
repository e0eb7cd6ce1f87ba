// Notes as the databases keep them: values under the numbers of tags.
#pragma once

#include "client/collection/note.h"
#include "store/records.h"
#include "utilities/note.h"

namespace client {

host::NoteRecord toRecord(Note note);

Note toNote(const veloran::utilities::Note& tags);

}  // namespace client
