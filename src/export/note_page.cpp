#include <limits>

#include "export/notes_exporter_impl.h"
#include "readerlib/position_uri.h"

namespace veloran {

namespace {

using Veloran::ReaderLib::extractPageFromnURI;

// Returns nullopt for a number outside the range of int, infinity or NaN, because the
// conversion would be undefined.
std::optional<int> withoutFraction(double page) {
    using Limits = std::numeric_limits<int>;
    if (page > Limits::min() - 1.0 && page < Limits::max() + 1.0) {
        return static_cast<int>(page);
    }
    return std::nullopt;
}

}  // namespace

std::optional<int> NotesExporterImpl::getPageNumber(const utilities::Note& note) {
    double page = 0;
    if (extractPageFromnURI(note.getAnchorUri(), page)) {
        return withoutFraction(page);
    }
    if (extractPageFromnURI(note.getJsonTagElement(utilities::Note::Tag::Range, "begin"),
                            page)) {
        return withoutFraction(page);
    }
    return std::nullopt;
}

std::string NotesExporterImpl::getNotePage(const utilities::Note& note) {
    const std::optional<int> page = getPageNumber(note);
    return page ? std::to_string(*page) : std::string();
}

}  // namespace veloran
