#include "client/files/temp_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "client/error.h"
#include "client/files/cause.h"

namespace fs = std::filesystem;

namespace {

// Another program may remove the folders that it made just when they are found here.
constexpr int kAttempts = 10;

bool isFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

}  // namespace

FreshFolder::FreshFolder(const std::string& parent) {
    const SignalsHeld held;
    bool done = false;
    for (int i = 0; i < kAttempts && !done; ++i) {
        errno = 0;
        makeParents(parent);
        done = make(parent);
        if (errno != ENOENT) {
            break;
        }
    }
    if (!done) {
        const std::string why = cause(errno);
        FreshFolder::remove();
        throw Complaint("Cannot write into the folder " + parent + ": " + why + '.');
    }
    removeOnSignal(this);
}

FreshFolder::~FreshFolder() {
    const SignalsHeld held;
    removeOnSignal(nullptr);
    // The library may have chosen another name: a book's title can change meanwhile.
    std::error_code failure;
    fs::remove_all(path_, failure);
    FreshFolder::remove();
}

// What fails here makes the folder itself fail, for the same reason.
void FreshFolder::makeParents(const std::string& parent) {
    fs::path folder;
    for (const fs::path& part : fs::path(parent)) {
        folder /= part;
        if (!isFolder(folder) && mkdir(folder.c_str(), 0777) == 0) {
            made_.push_back(folder.string());
        }
    }
}

bool FreshFolder::make(const std::string& parent) {
    std::string name = parent + "/.notes-export-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        return false;
    }
    path_ = name;
    return true;
}

void FreshFolder::expect(const std::string& file) {
    const SignalsHeld held;
    file_ = file;
}

void FreshFolder::remove() const noexcept {
    unlink(file_.c_str());
    rmdir(path_.c_str());
    for (auto folder = made_.rbegin(); folder != made_.rend(); ++folder) {
        rmdir(folder->c_str());
    }
}
