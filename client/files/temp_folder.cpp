#include "client/files/temp_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "client/error.h"
#include "client/files/cause.h"
#include "client/files/signals.h"
#include "client/text/affixes.h"

namespace client {

namespace fs = std::filesystem;

namespace {

// Another program may remove the folders that it made just when they are found here.
constexpr int kAttempts = 10;

// The folder that a signal removes.
std::atomic<const TempFolder*> current{nullptr};
static_assert(decltype(current)::is_always_lock_free);

constexpr const char* kNameStart = ".notes-export-";

// Returns a descriptor that holds the folder's lock, or -1.
int lockFolder(const std::string& path) {
    const int folder = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder != -1 && flock(folder, LOCK_EX | LOCK_NB) != 0) {
        close(folder);
        return -1;
    }
    return folder;
}

bool isOldAndOwn(int folder) {
    constexpr std::int64_t kMinAge = 60;  // seconds: its owner may not have locked it yet
    struct statx status = {};
    return statx(folder, "", AT_EMPTY_PATH, STATX_UID | STATX_MTIME, &status) == 0 &&
           status.stx_uid == geteuid() &&
           status.stx_mtime.tv_sec + kMinAge < std::int64_t{std::time(nullptr)};
}

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
        done = makeParents(parent) && make(parent);
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
    if (lock_ != -1) {
        close(lock_);
    }
}

// Leaves the cause in errno if it fails. What stands at a path already may be a folder that
// another program has just made.
bool TempFolder::makeParents(const std::string& parent) {
    fs::path folder;
    for (const fs::path& part : fs::path(parent)) {
        folder /= part;
        if (isFolder(folder)) {
            continue;
        }
        if (mkdir(folder.c_str(), 0777) == 0) {
            made_.push_back(folder.string());
        } else if (errno != EEXIST) {
            return false;
        }
    }
    return true;
}

bool TempFolder::make(const std::string& parent) {
    std::string name = parent + '/' + kNameStart + "XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        return false;
    }
    path_ = name;
    lock_ = lockFolder(path_);
    return true;
}

void TempFolder::expect(const std::string& file) {
    const SignalBlock block;
    files_.push_back(file);
}

void TempFolder::remove() const noexcept {
    for (const std::string& file : files_) {
        unlink(file.c_str());
    }
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

void TempFolder::removeLeftovers(const std::string& parent) {
    std::error_code failure;
    for (fs::directory_iterator entry(parent, failure), end; !failure && entry != end;
         entry.increment(failure)) {
        const std::string found = entry->path().string();
        const bool isNamed = startsWith(entry->path().filename().string(), kNameStart);
        const int folder = isNamed ? lockFolder(found) : -1;
        if (folder != -1 && isOldAndOwn(folder)) {
            std::error_code ignored;
            fs::remove_all(found, ignored);
        }
        if (folder != -1) {
            close(folder);
        }
    }
}

}  // namespace client
