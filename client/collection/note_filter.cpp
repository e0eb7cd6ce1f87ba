#include "client/collection/note_filter.h"

#include <algorithm>

#include "client/text/case_folding.h"

namespace client {
namespace {

template <class Value>
bool holds(const std::vector<Value>& values, const Value& value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

bool contains(const std::string& text, const std::string& folded) {
    return caseFolded(text).find(folded) != std::string::npos;
}

}  // namespace

void NoteFilter::addColor(const std::string& color) { colors.push_back(caseFolded(color)); }

void NoteFilter::setMatch(const std::string& text) { match = caseFolded(text); }

bool NoteFilter::isEmpty() const {
    return ids.empty() && colors.empty() && !since && !match && kinds.empty();
}

bool NoteFilter::selects(const Note& note) const {
    return selectsId(note.id) && (!since || note.time >= *since) &&
           (colors.empty() || holds(colors, caseFolded(note.color))) &&
           (kinds.empty() || holds(kinds, kindOf(note))) &&
           (!match || contains(note.text, *match) || contains(note.comment, *match));
}

bool NoteFilter::selectsId(unsigned long long id) const {
    return ids.empty() || holds(ids, id);
}

}  // namespace client
