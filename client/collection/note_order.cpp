#include "client/collection/note_order.h"

#include <algorithm>
#include <utility>

#include "client/collection/note_tags.h"

namespace client {

std::vector<PlacedNote> notesInOrder(NoteOrder order, const std::string& bookHash,
                                     host::ReaderStore& store) {
    std::vector<PlacedNote> notes;
    if (const auto book = store.findBook(bookHash)) {
        for (host::NoteOutline& note : store.outlines(book->id)) {
            notes.push_back({note.id, std::move(note.uuid), note.time,
                             placeIn(note.anchor, note.range)});
        }
    }
    using Placed = const PlacedNote&;
    if (order == NoteOrder::Id) {  // as they are printed
        std::sort(notes.begin(), notes.end(), [](Placed a, Placed b) {
            return static_cast<std::uint64_t>(a.id) < static_cast<std::uint64_t>(b.id);
        });
        return notes;
    }
    sortForReading(notes);
    if (order == NoteOrder::Newest) {
        std::stable_sort(notes.begin(), notes.end(),
                         [](Placed a, Placed b) { return a.time > b.time; });
    }
    return notes;
}

}  // namespace client
