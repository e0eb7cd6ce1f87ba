// The notes that an export writes, and their order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "client/collection/note_reader.h"
#include "notes_export/notes_export.h"

namespace client {

struct NoteSelection {
    bool isEmpty = false;                    // no note is to be written
    std::set<unsigned long long> ids;        // of the notes; empty: all, unless `isEmpty`
    std::vector<std::int64_t> order = {};    // of all notes of the book
    notes_exporter_before before = nullptr;  // null if the library's order is right
    std::unordered_map<long long, std::size_t> ranks = {};  // `before` looks at them
    std::string description = {};  // of the filter and the order, equal for equal ones
};

// Selects the notes of one book that meet the reader's filter, in its order. With
// `mustHaveIds`, throws UserError if the book lacks a note that the filter names.
NoteSelection selectNotes(NoteReader& reader, const std::string& bookHash,
                          bool mustHaveIds);

}  // namespace client
