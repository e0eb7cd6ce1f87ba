#include <algorithm>
#include <iostream>

#include "commands/commands.h"
#include "device/device_folder.h"
#include "device/whole_file.h"
#include "sources/device_file.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/reader_store.h"
#include "terminal/complaint.h"
#include "terminal/one_line.h"
#include "terminal/progress_line.h"

namespace {

constexpr std::size_t kMostNamed = 3;

void writeRest(const DeviceFile& device, host::LibraryStore& library) {
    try {
        library.putBooks(device.libraryBooks);
        if (device.styleSheet) {
            writeFile(host::kNoteStyleSheetPath, *device.styleSheet);
        }
    } catch (const std::runtime_error& error) {
        throw Complaint(
            std::string("The notes are on the device, but not all of the rest: ") +
            error.what() + "\nLoad the file again once that is repaired.");
    }
}

// Nothing is written before all of the file is known to be right, and both databases to be
// databases.
host::LoadResult loaded(const std::string& file) {
    const ProgressLine progress("Loading");
    const DeviceFile device = readDeviceFile(file);
    prepareDevice();
    host::ReaderStore reader(host::kReaderDatabasePath);
    host::LibraryStore library(host::kLibraryDatabasePath);
    host::LoadResult result = reader.load(device.records);
    writeRest(device, library);
    return result;
}

std::string named(const host::KeptNote& note) {
    return "  " + oneLine(note.uuid) + " of " + oneLine(note.fastHash) + "  \"" +
           oneLine(note.title) + "\"\n";
}

std::string keptNotes(const std::vector<host::KeptNote>& notes) {
    std::string text =
        "The device keeps its own of these notes, as the file's differ but "
        "are not newer:\n";
    for (std::size_t i = 0; i < std::min(notes.size(), kMostNamed); ++i) {
        text += named(notes[i]);
    }
    return notes.size() <= kMostNamed
               ? text
               : text + "  and " + std::to_string(notes.size() - kMostNamed) + " more\n";
}

}  // namespace

void load(const std::string& file) {
    const host::LoadResult result = loaded(file);
    if (!result.kept.empty()) {
        std::cerr << complaintText(keptNotes(result.kept));
    }
    std::cout << result.changed << '\n';
}
