// The file that describes a device's content: its books, their notes and the style sheet.
#pragma once

#include <string>
#include <vector>

#include "records.h"

struct LoadedBook {
    std::string author;
    host::BookRecord record;
};

struct DeviceFile {
    std::string styleSheet;  // the style sheet's text; empty when the file names none
    std::vector<LoadedBook> books;
};

// Reads the JSON file at `path` and the pictures and the style sheet that it names, which
// it finds relative to its own folder. Anything missing, misspelt or of the wrong type is a
// Complaint that says where.
DeviceFile readDeviceFile(const std::string& path);
