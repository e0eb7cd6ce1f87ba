#include "client/collection/note_filter.h"

#include <algorithm>

#include "client/text/case_folding.h"

namespace {

using veloran::utilities::Note;

bool hasColor(const Note& note, const std::vector<std::string>& colors) {
    const std::string color = folded(note.getColor());
    return std::any_of(colors.begin(), colors.end(),
                       [&](const std::string& wanted) { return folded(wanted) == color; });
}

bool holds(const std::string& text, const std::string& wanted) {
    return folded(text).find(wanted) != std::string::npos;
}

bool matches(const Note& note, const std::string& text) {
    const std::string wanted = folded(text);
    return holds(note.getText(), wanted) || holds(note.getNote(), wanted);
}

}  // namespace

bool NoteFilter::isEmpty() const {
    return ids.empty() && colors.empty() && !since && match.empty();
}

bool NoteFilter::selects(const Note& note) const {
    return (ids.empty() || std::find(ids.begin(), ids.end(), note.noteId) != ids.end()) &&
           (colors.empty() || hasColor(note, colors)) &&
           (!since || std::int64_t{note[Note::Tag::Uuid].timestamp} >= *since) &&
           (match.empty() || matches(note, match));
}
