#include <iostream>

#include "commands.h"
#include "device_file.h"
#include "device_paths.h"
#include "files.h"
#include "library_store.h"
#include "reader_store.h"
#include "utilities/serialization_utils.h"

void load(const std::string& file) {
    using veloran::utilities::SerializationUtils;
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
    std::cout << host::ReaderStore(host::kReaderDatabasePath).merge(records) << '\n';
}
