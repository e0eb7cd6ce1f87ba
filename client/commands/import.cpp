#include "client/collection/collection_folder.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/error.h"
#include "client/files/digest.h"
#include "client/files/whole_file.h"
#include "client/pages/exporter.h"
#include "client/pages/written_files.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "store/database_paths.h"
#include "store/reader_store.h"

namespace client {
namespace {

[[noreturn]] void refuse(const std::string& file, const std::string& why) {
    throw UserError("Nothing was imported from " + file + ": " + why);
}

std::string causeOf(int result) {
    constexpr const char* kAdvice =
        ". If it is an exported page, \"notes-export load\" reads what it shows.";
    switch (result) {
        case host::kNoDump:
            return std::string("it holds no dump") + kAdvice;
        case host::kDumpDamaged:
            return std::string("its dump is damaged") + kAdvice;
        case host::kVersionUnknown:
            return "its dump was written by a later version of notes-export.";
        default:
            return "it cannot be read to its end.";
    }
}

// The number that an import returns for a file is its cause: the file is not read again.
[[noreturn]] void refuse(const std::string& file, int result) {
    if (result == host::kFileUnreadable) {
        readStart(file, 1);  // throws in the system's words
    }
    refuse(file, causeOf(result));
}

std::vector<host::BookRecord> recordsIn(const std::string& file) {
    try {
        return host::readDump(file);
    } catch (const host::DumpError& error) {
        refuse(file, error.result);
    }
}

// Notes the file before the library marks it: an import that is cut in between must not
// make it look like a page that version 1.1 exported. What cannot be noted cannot be
// marked, either.
void tryNote(const std::string& file) {
    try {
        WrittenFiles().noteImported(contentDigest(file));
    } catch (const std::runtime_error&) {
    }
}

int callLibrary(const std::string& file) {
    tryNote(file);
    const Exporter exporter;
    return notes_exporter_import_from_file(exporter.handle(), file.c_str());
}

// The number for a database that failed says no more; the store throws the cause.
int mergeDirectly(const std::string& file) {
    const std::vector<host::BookRecord> records = recordsIn(file);
    try {
        return host::ReaderStore(host::kReaderDatabasePath).merge(records);
    } catch (const std::runtime_error& error) {
        refuse(file, error.what());
    }
}

// If the failure does not occur again, the notes are merged now, and the file is marked.
int importAgain(const std::string& file) {
    const int merged = mergeDirectly(file);
    if (callLibrary(file) < 0) {
        throw UserError("The notes of " + file +
                        " were imported, but the file could not be marked.");
    }
    return merged;
}

int importFile(const std::string& file) {
    if (!collectionExists()) {
        recordsIn(file);  // a file that is refused makes no collection
        prepareCollection();
    }
    const int result = callLibrary(file);
    if (result >= 0) {
        return result;
    }
    if (host::kVersionUnknown <= result && result <= host::kFileUnreadable) {
        refuse(file, result);
    }
    return importAgain(file);
}

}  // namespace

void importAll(const std::vector<std::string>& files) {
    requireDone(runBatch("Importing", files, [&](const std::string& file) {
        return Outcome{resultOf(file, files.size(), importFile(file))};
    }));
}

}  // namespace client
