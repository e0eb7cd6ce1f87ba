// Writes the dump of some books of the reader database.
#pragma once

#include <set>
#include <string>

#include "dump/format.h"
#include "dump/payload.h"
#include "store/reader_store.h"

namespace host {

// Appends to `out` the dump (format.h) of the books with the identifiers `books`, with
// those of their notes that `notes` names, or all when it is empty. Identifiers of nothing
// are ignored. Only one note at a time is held in memory. The same records give the same
// bytes, whatever the row identifiers are. Returns false when there is none of the books.
// Throws std::runtime_error when the database cannot be read or the dump exceeds
// `limits`. `out` is unspecified in both cases.
bool writeDump(ReaderStore& store, const std::set<unsigned long long>& books,
               const std::set<unsigned long long>& notes, std::string& out,
               const DumpLimits& limits = {});

// Whether the payload holds just the text that writeDump would write. Throws DumpError
// besides, when the payload is damaged.
bool isCurrentDump(ReaderStore& store, const std::set<unsigned long long>& books,
                   const std::set<unsigned long long>& notes, Payload payload);

}  // namespace host
