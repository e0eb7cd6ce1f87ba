#include "client/files/temp_folder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "client/error.h"
#include "client/files/cause.h"
#include "client/files/signals.h"

namespace client {

namespace fs = std::filesystem;

namespace {

// Another program may remove the folders that it made just when they are found here.
constexpr int kAttempts = 10;

// The folder that a signal removes.
std::atomic<const TempFolder*> current{nullptr};
static_assert(decltype(current)::is_always_lock_free);

bool isFolder(const fs::path& path) {
    std::error_code failure;
    return fs::is_directory(path, failure);
}

}  // namespace

TempFolder::TempFolder(const std::string& parent) {
    const SignalBlock block;
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
        remove();
        throw UserError("Cannot write into the folder " + parent + ": " + why + '.');
    }
    current = this;
    cleanUpOnSignal(removeCurrent);
}

TempFolder::~TempFolder() {
    const SignalBlock block;
    current = nullptr;
    // The library may have chosen another name: a book's title can change meanwhile.
    std::error_code failure;
    fs::remove_all(path_, failure);
    remove();
}

// A failure here makes the folder itself fail, for the same reason.
void TempFolder::makeParents(const std::string& parent) {
    fs::path folder;
    for (const fs::path& part : fs::path(parent)) {
        folder /= part;
        if (!isFolder(folder) && mkdir(folder.c_str(), 0777) == 0) {
            made_.push_back(folder.string());
        }
    }
}

bool TempFolder::make(const std::string& parent) {
    std::string name = parent + "/.notes-export-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        return false;
    }
    path_ = name;
    return true;
}

void TempFolder::expect(const std::string& file) {
    const SignalBlock block;
    file_ = file;
}

void TempFolder::remove() const noexcept {
    unlink(file_.c_str());
    rmdir(path_.c_str());
    for (auto folder = made_.rbegin(); folder != made_.rend(); ++folder) {
        rmdir(folder->c_str());
    }
}

void TempFolder::removeCurrent() {
    if (const TempFolder* folder = current) {
        folder->remove();
    }
}

}  // namespace client
