#include "client/collection/collection_folder.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/pages/exporter.h"
#include "client/sources/exported_page/exported_page.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "files/input_file.h"
#include "store/database_paths.h"
#include "store/reader_store.h"

namespace {

std::string advice(int result, const std::string& file) {
    constexpr std::size_t kStart = 65536;
    if (result == host::kFileUnreadable) {
        return ".";
    }
    if (isExportedPage(readStart(file, kStart))) {
        return ". \"notes-export load\" reads what the page shows.";
    }
    return ". Was it exported by this library?";
}

[[noreturn]] void refuse(const std::string& file, std::string why) {
    if (why.rfind(file + ": ", 0) == 0) {
        why.erase(0, file.size() + 2);
    }
    throw Complaint("Nothing was imported from " + file + ": " + why);
}

std::vector<host::BookRecord> recordsOf(const std::string& file) {
    try {
        const host::InputFile readable(file);  // otherwise in the system's words
        return host::readDump(file);
    } catch (const host::DumpError& error) {
        refuse(file, error.what() + advice(error.result, file));
    } catch (const std::runtime_error& error) {
        refuse(file, error.what());
    }
}

int callLibrary(const std::string& file) {
    const Exporter exporter;
    return notes_exporter_import_from_file(exporter.handle(), file.c_str());
}

// The library tells a failure only as a number; its cause is told by the store.
int mergeDirectly(const std::string& file) {
    const std::vector<host::BookRecord> records = recordsOf(file);
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
        throw Complaint("The notes of " + file +
                        " were imported, but the file could not be marked.");
    }
    return merged;
}

int imported(const std::string& file) {
    if (!isDevice()) {
        recordsOf(file);  // a file that is refused makes no device
        prepareDevice();
    }
    const int result = callLibrary(file);
    return result < 0 ? importAgain(file) : result;
}

}  // namespace

void importAll(const std::vector<std::string>& files) {
    doEach("Importing", files, [&](const std::string& file) {
        return Outcome{resultOf(file, files.size(), imported(file))};
    });
}
