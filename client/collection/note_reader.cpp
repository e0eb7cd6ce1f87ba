#include "client/collection/note_reader.h"

#include "client/collection/note_tags.h"
#include "client/error.h"
#include "client/text/case_folding.h"

namespace client {

void NoteReader::read(const std::string& bookHash,
                      const std::function<void(const Note&)>& visit) {
    for (const auto& [key, id] : readerDb_.getBookNotesHashUUIDs(bookHash, true)) {
        missingIds_.erase(id);
        if (!filter_.selectsId(id)) {
            continue;
        }
        const Note note = toNote(readerDb_.getNote(key));
        if (!missingColors_.empty()) {
            missingColors_.erase(caseFolded(note.color));
        }
        if (filter_.selects(note)) {
            isAnySelected_ = true;
            visit(note);
        }
    }
}

void NoteReader::requireFound() const {
    if (const auto id = missingId()) {
        throw UserError("The books have no note " + std::to_string(*id) + '.');
    }
    if (isAnySelected_ || filter_.isEmpty()) {
        return;
    }
    // With identifiers, other notes are not read.
    const bool isColorMissing = filter_.ids.empty() && !missingColors_.empty();
    throw UserError(isColorMissing ? "No note is selected; none has the colour \"" +
                                         *missingColors_.begin() + "\"."
                                   : std::string("No note is selected."));
}

}  // namespace client
