#include "client/collection/collection_folder.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "client/collection/style_sheet.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "store/database_paths.h"

namespace client {

namespace fs = std::filesystem;

void makeAbsolute(std::string& path) {
    if (!path.empty()) {
        path = fs::absolute(path).string();
        // SQLite reads what follows two slashes as the name of a host.
        path.erase(0, std::min(path.find_first_not_of('/'), path.size()) - 1);
    }
}

void enterCollection(const std::string& folder, CollectionNeed need) {
    std::error_code error;
    if (!folder.empty()) {
        fs::current_path(folder, error);
    }
    if (error) {
        throw UserError("Cannot enter " + folder, error);
    }
    if (need == CollectionNeed::MustExist && !collectionExists()) {
        throw UserError(
            "There is no collection in " + fs::current_path().string() +
            ". Name its folder with -C, or make one with \"notes-export load\".");
    }
}

bool collectionExists() {
    std::error_code error;
    const bool isThere = fs::exists(host::kReaderDatabasePath, error);
    if (error) {
        throw UserError(
            "Cannot look for " + fs::absolute(host::kReaderDatabasePath).string(), error);
    }
    return isThere;
}

void prepareCollection() {
    if (collectionExists()) {
        return;
    }
    const fs::path folder = fs::absolute(host::kReaderDatabasePath).parent_path();
    makeFolders(folder);
    if (access(folder.c_str(), W_OK) != 0) {
        throw UserError("Cannot write in " + folder.string(),
                        {errno, std::generic_category()});
    }
    std::error_code failure;
    if (!fs::exists(fs::symlink_status(host::kNoteStyleSheetPath, failure))) {
        writeFile(host::kNoteStyleSheetPath, kStyleSheet);
    }
}

}  // namespace client
