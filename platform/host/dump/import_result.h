// The failures of an import.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

// The negative results of ImportExportDBV2::books_import; other results are the number of
// notes added or changed. -1 is reserved for failures of the caller.
enum ImportResult : int {
    kFileUnreadable = -2,  // no such file, not a file, or not readable to its end
    kNoDump = -3,          // the document has no dump
    kDumpDamaged = -4,     // cut, altered or not a dump
    kVersionUnknown = -5,  // written by a later version of this format
    kDatabaseError = -6,   // the reader database is closed, busy or broken
};

// A failure to read a document's dump; `result` is the result of the import.
class DumpError : public std::runtime_error {
public:
    DumpError(ImportResult why, const std::string& what)
        : std::runtime_error(what), result(why) {}

    const ImportResult result;
};

}  // namespace host
