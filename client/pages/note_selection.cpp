#include "client/pages/note_selection.h"

#include <algorithm>
#include <vector>

#include "client/collection/book_notes.h"
#include "client/error.h"

namespace {

using veloran::utilities::Note;
using Timestamps = decltype(NoteSelection::timestamps);

bool byId(void* /*unused*/, long long first, long long second) {
    return static_cast<unsigned long long>(first) < static_cast<unsigned long long>(second);
}

bool byNewest(void* timestamps, long long first, long long second) {
    auto& times = *static_cast<Timestamps*>(timestamps);
    return times[first] > times[second];
}

notes_exporter_before orderNamed(const std::string& name) {
    return name == "id" ? byId : name == "newest" ? byNewest : nullptr;
}

}  // namespace

NoteSelection selectNotes(const std::string& bookHash, const ExportRequest& request) {
    NoteSelection selection;
    selection.before = orderNamed(request.order);
    if (request.filter.isEmpty() && selection.before != byNewest) {
        return selection;
    }
    for (const Note& note : notesOf(bookHash)) {
        if (request.filter.selects(note)) {
            selection.ids.insert(note.noteId);
            const auto id = static_cast<long long>(note.noteId);
            selection.timestamps[id] = note[Note::Tag::Uuid].timestamp;
        }
    }
    selection.isEmpty = selection.ids.empty() && !request.filter.isEmpty();
    return selection;
}

void complainUnlessNotesExist(const std::string& bookHash, const ExportRequest& request) {
    if (request.filter.ids.empty()) {
        return;
    }
    const std::vector<Note> notes = notesOf(bookHash);
    for (const unsigned long long id : request.filter.ids) {
        const auto hasId = [id](const Note& note) { return note.noteId == id; };
        if (std::none_of(notes.begin(), notes.end(), hasId)) {
            throw Complaint("The book has no note " + std::to_string(id) +
                            ". \"notes-export notes " + bookHash + "\" lists them.");
        }
    }
}
