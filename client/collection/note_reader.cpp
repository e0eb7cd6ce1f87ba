#include "client/collection/note_reader.h"

#include <cstdint>
#include <utility>

#include "client/collection/note_tags.h"
#include "client/error.h"
#include "client/text/case_folding.h"
#include "store/note_prefetch.h"

namespace client {

std::vector<PlacedNote> NoteReader::inOrder(const std::string& bookHash) {
    return notesInOrder(order_, bookHash, store_);
}

void NoteReader::read(const std::vector<PlacedNote>& notes,
                      const std::function<void(const Note&)>& visit) {
    std::vector<std::int64_t> ids;
    for (const PlacedNote& placed : notes) {
        const auto id = static_cast<unsigned long long>(placed.id);
        missingIds_.erase(id);
        if (filter_.selectsId(id)) {
            ids.push_back(placed.id);
        }
    }
    host::NotePrefetch prefetch;
    prefetch.expect(ids);
    for (const std::int64_t id : ids) {
        if (auto record = prefetch.take(store_, id)) {
            visitIfSelected(toNote(id, std::move(*record)), visit);
        }
    }
}

void NoteReader::visitIfSelected(const Note& note,
                                 const std::function<void(const Note&)>& visit) {
    if (!missingColors_.empty()) {
        missingColors_.erase(caseFolded(note.color));
    }
    if (filter_.selects(note)) {
        isAnySelected_ = true;
        visit(note);
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
