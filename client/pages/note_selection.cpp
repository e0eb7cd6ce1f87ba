#include "client/pages/note_selection.h"

#include <iomanip>
#include <sstream>

#include "client/error.h"

namespace client {
namespace {

using Ranks = decltype(NoteSelection::ranks);

// Notes that were added meanwhile are last.
bool isRankedBefore(void* ranks, long long first, long long second) {
    const Ranks& known = *static_cast<Ranks*>(ranks);
    const auto one = known.find(first);
    const auto other = known.find(second);
    return one != known.end() && (other == known.end() || one->second < other->second);
}

void setOrder(NoteSelection& selection, const std::vector<PlacedNote>& notes) {
    for (const PlacedNote& note : notes) {
        selection.order.push_back(note.id);
    }
    if (isPageOrder(notes)) {
        return;
    }
    selection.before = isRankedBefore;
    for (const std::int64_t id : selection.order) {
        selection.ranks.emplace(id, selection.ranks.size());
    }
}

const char* nameOf(NoteOrder order) {
    return order == NoteOrder::Id ? "id" : order == NoteOrder::Newest ? "newest" : "";
}

std::string describe(const NoteFilter& filter, NoteOrder order) {
    std::ostringstream text;
    text << nameOf(order);
    for (const unsigned long long id : filter.ids) {
        text << " id " << id;
    }
    for (const std::string& color : filter.colors) {
        text << " color " << std::quoted(color);
    }
    for (const std::string& kind : filter.kinds) {
        text << " kind " << kind;
    }
    if (filter.since) {
        text << " since " << *filter.since;
    }
    if (filter.match) {
        text << " match " << std::quoted(*filter.match);
    }
    return text.str();
}

}  // namespace

NoteSelection selectNotes(NoteReader& reader, const std::string& bookHash,
                          bool mustHaveIds) {
    const NoteFilter& filter = reader.filter();
    const std::vector<PlacedNote> notes = reader.inOrder(bookHash);
    NoteSelection selection;
    selection.description = describe(filter, reader.order());
    setOrder(selection, notes);
    if (filter.isEmpty()) {
        return selection;
    }
    reader.read(notes, [&](const Note& note) { selection.ids.insert(note.id); });
    if (const auto id = reader.missingId(); id && mustHaveIds) {
        throw UserError("The book has no note " + std::to_string(*id) +
                        ". \"notes-export notes " + bookHash + "\" lists them.");
    }
    selection.isEmpty = selection.ids.empty();
    return selection;
}

}  // namespace client
