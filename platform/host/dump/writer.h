// Writes the dump of some books of the reader database.
#pragma once

#include <set>
#include <string>

#include "dump/format.h"
#include "store/reader_store.h"

namespace host {

// Appends to `out` the dump (format.h) of the books with the identifiers `books`, with
// their notes in `notes`, or all notes if that is empty. Unknown identifiers are ignored.
// Holds one note at a time in memory. Equal records give equal bytes, independent of row
// identifiers. Returns false if none of the books exists. Throws std::runtime_error if the
// database cannot be read or the dump exceeds `limits`. `out` is unspecified in both cases.
bool writeDump(ReaderStore& store, const std::set<unsigned long long>& books,
               const std::set<unsigned long long>& notes, std::string& out,
               const DumpLimits& limits = {});

}  // namespace host
