#include <iostream>

#include "commands.h"
#include "complaint.h"
#include "exporter.h"
#include "files.h"
#include "import_result.h"
#include "progress_line.h"

namespace {

// The library's own result; the import engine has others for its failures.
constexpr int kException = -1;

std::string reason(int result) {
    switch (result) {
        case host::kFileUnreadable:
            return "it cannot be read to its end.";
        case host::kNoDump:
            return "it carries no records. Was it exported by this library, and the book "
                   "not too large?";
        case host::kDumpDamaged:
            return "its records are damaged. Fetch the file again, byte for byte.";
        case host::kVersionUnknown:
            return "its records are of a version that this program does not know. Update "
                   "it.";
        case host::kDatabaseError:
            return "the reader database cannot be written. Is it in use, is there room?";
        default:
            return "the library failed with " + std::to_string(result) + ".";
    }
}

int callLibrary(const std::string& file) {
    const ProgressLine progress("Importing");
    const Exporter exporter;
    return notes_exporter_import_from_file(exporter.handle(), file.c_str());
}

}  // namespace

void importNotes(const std::string& file) {
    complainUnlessReadable(file);  // before the exporter makes a device for it
    const int result = callLibrary(file);
    if (result == kException) {
        throw Complaint("The import of " + file +
                        " failed part-way: its notes may be in, but the file could not be "
                        "marked. Is the library database in use, is there room?");
    }
    if (result < 0) {
        throw Complaint("Nothing was imported from " + file + ": " + reason(result));
    }
    std::cout << result << '\n';
}
