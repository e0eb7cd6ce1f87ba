#include "client/collection/collection_folder.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "client/collection/style_sheet.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "store/database_paths.h"

namespace fs = std::filesystem;

void makeAbsolute(std::string& path) {
    if (!path.empty()) {
        path = fs::absolute(path).string();
    }
}

void enterDevice(const std::string& folder, Device device) {
    std::error_code error;
    if (!folder.empty()) {
        fs::current_path(folder, error);
    }
    if (error) {
        complain("Cannot enter " + folder, error);
    }
    if (device == Device::MustExist && !isDevice()) {
        throw Complaint(
            "There is no device in " + fs::current_path().string() +
            ". Name its folder with -C, or make one with \"notes-export load\".");
    }
}

bool isDevice() {
    std::error_code error;
    const bool isThere = fs::exists(host::kReaderDatabasePath, error);
    if (error) {
        complain("Cannot look for " + fs::absolute(host::kReaderDatabasePath).string(),
                 error);
    }
    return isThere;
}

void prepareDevice() {
    if (isDevice()) {
        return;
    }
    const fs::path folder = fs::absolute(host::kReaderDatabasePath).parent_path();
    makeFolders(folder);
    if (access(folder.c_str(), W_OK) != 0) {
        complain("Cannot write in " + folder.string(), {errno, std::generic_category()});
    }
    std::error_code failure;
    if (!fs::exists(fs::symlink_status(host::kNoteStyleSheetPath, failure))) {
        writeFile(host::kNoteStyleSheetPath, kStyleSheet);
    }
}
