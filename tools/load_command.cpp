#include <iostream>

#include "commands.h"
#include "device_file.h"
#include "device_paths.h"
#include "files.h"
#include "library_store.h"
#include "progress_line.h"
#include "reader_store.h"
#include "utilities/serialization_utils.h"

namespace {

int loaded(const std::string& file) {
    using veloran::utilities::SerializationUtils;
    const ProgressLine progress("Loading");
    DeviceFile device = readDeviceFile(file);
    host::LibraryStore library(host::kLibraryDatabasePath);
    std::vector<host::BookRecord> records;
    for (LoadedBook& book : device.books) {
        host::BookRecord& record = book.record;
        const std::string uid = SerializationUtils::FromHex(record.fastHash);
        library.putBook({uid, record.title, book.author, record.path});
        records.push_back(std::move(record));
    }
    if (!device.styleSheet.empty()) {
        writeFile(host::kNoteStyleSheetPath, device.styleSheet);
    }
    return host::ReaderStore(host::kReaderDatabasePath).merge(records);
}

}  // namespace

void load(const std::string& file) { std::cout << loaded(file) << '\n'; }
