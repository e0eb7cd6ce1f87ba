// The file that describes a device's content: its books, their notes and the style sheet.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "store/library_store.h"
#include "store/records.h"

struct DeviceFile {
    std::optional<std::string> styleSheet;  // text; nothing when the file names none
    std::vector<host::BookRecord> records;  // for the reader database
    std::vector<host::LibraryBook>
        libraryBooks;  // the same books, for the library database
};

// Reads the JSON file at `path` and the pictures and the style sheet that it names, which
// it finds relative to its own folder. Anything missing, misspelt, of the wrong type or
// there twice is a Complaint that says where.
DeviceFile readDeviceFile(const std::string& path);
