#include "client/pages/note_selection.h"

#include <iomanip>
#include <sstream>

#include "client/error.h"

namespace client {
namespace {

using Times = decltype(NoteSelection::times);

bool byId(void* /*unused*/, long long first, long long second) {
    return static_cast<unsigned long long>(first) < static_cast<unsigned long long>(second);
}

bool byNewest(void* times, long long first, long long second) {
    Times& known = *static_cast<Times*>(times);
    return known[first] > known[second];
}

notes_exporter_before orderNamed(const std::string& name) {
    return name == "id" ? byId : name == "newest" ? byNewest : nullptr;
}

std::string describe(const NoteFilter& filter, const std::string& order) {
    std::ostringstream text;
    text << (order == "page" ? "" : order);
    for (const unsigned long long id : filter.ids) {
        text << " id " << id;
    }
    for (const std::string& color : filter.colors) {
        text << " color " << std::quoted(color);
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
                          const std::string& order, bool mustHaveIds) {
    const NoteFilter& filter = reader.filter();
    NoteSelection selection;
    selection.before = orderNamed(order);
    selection.description = describe(filter, order);
    if (filter.isEmpty() && selection.before != byNewest) {
        return selection;
    }
    reader.read(bookHash, [&](const Note& note) {
        selection.ids.insert(note.id);
        selection.times[static_cast<long long>(note.id)] = note.time;
    });
    if (const auto id = reader.missingId(); id && mustHaveIds) {
        throw UserError("The book has no note " + std::to_string(*id) +
                        ". \"notes-export notes " + bookHash + "\" lists them.");
    }
    selection.isEmpty = selection.ids.empty() && !filter.isEmpty();
    return selection;
}

}  // namespace client
