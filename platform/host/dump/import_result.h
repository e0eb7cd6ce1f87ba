// What an import answers when it fails.
#pragma once

#include <stdexcept>
#include <string>

namespace host {

// The results of ImportExportDBV2::books_import below zero; from zero up it is the number
// of notes added or changed. -1 stays free for callers that need a failure of their own.
enum ImportResult : int {
    kFileUnreadable = -2,  // no such file, not a file, or not readable to its end
    kNoDump = -3,          // the document holds no dump
    kDumpDamaged = -4,     // cut, altered, or not a dump at all
    kVersionUnknown = -5,  // written by a later version of this format
    kDatabaseError = -6,   // the reader database is closed, busy or broken
};

// Why a document's dump cannot be had; `result` is what the import answers.
class DumpError : public std::runtime_error {
public:
    DumpError(ImportResult why, const std::string& what)
        : std::runtime_error(what), result(why) {}

    const ImportResult result;
};

}  // namespace host
