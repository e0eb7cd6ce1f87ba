#include "reader_records.h"

std::string recordsOnDevice() {
    return show(host::ReaderStore(host::kReaderDatabasePath).records());
}

std::string databaseBytes() {
    const std::string path = host::kReaderDatabasePath;
    return readFile(path) + readFile(path + "-journal");
}

int merge(const std::vector<host::BookRecord>& books) {
    return host::ReaderStore(host::kReaderDatabasePath).merge(books);
}

std::string exported() {
    std::string payload;
    EXPECT_TRUE(Engine()->books_export(payload, {1, 2}));  // the first rows
    return payload;
}
