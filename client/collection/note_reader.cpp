#include "client/collection/note_reader.h"

#include "client/collection/note_tags.h"

namespace client {

void NoteReader::read(const std::string& bookHash,
                      const std::function<void(const Note&)>& visit) {
    for (const auto& [key, id] : readerDb_.getBookNotesHashUUIDs(bookHash, true)) {
        missing_.erase(id);
        if (!filter_.selectsId(id)) {
            continue;
        }
        if (const Note note = toNote(readerDb_.getNote(key)); filter_.selects(note)) {
            visit(note);
        }
    }
}

}  // namespace client
