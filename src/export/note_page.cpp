#include <limits>

#include "export/notes_exporter_impl.h"
#include "readerlib/position_uri.h"

namespace veloran {

namespace {

using Veloran::ReaderLib::extractPageFromnURI;

// Converting a number that the integer cannot hold would be undefined; so would infinity
// and not-a-number, which both comparisons refuse.
std::string label(double page) {
    using Limits = std::numeric_limits<int>;
    if (page > Limits::min() - 1.0 && page < Limits::max() + 1.0) {
        return std::to_string(static_cast<int>(page));
    }
    return {};
}

}  // namespace

std::string NotesExporterImpl::getNotePage(const utilities::Note& note) {
    double page = 0;
    if (extractPageFromnURI(note.getAnchorUri(), page)) {
        return label(page);
    }
    if (extractPageFromnURI(note.getJsonTagElement(utilities::Note::Tag::Range, "begin"),
                            page)) {
        return label(page);
    }
    return {};
}

}  // namespace veloran
