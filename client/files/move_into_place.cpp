#include "client/files/move_into_place.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "client/error.h"
#include "client/files/cause.h"
#include "client/files/signals.h"

namespace client {
namespace {

// File systems of memory cards know neither flags of a rename nor hard links.
bool isUnknownHere(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP || error == EPERM;
}

bool tryRename(const std::string& from, const std::string& to, unsigned flags) {
    return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), flags) == 0;
}

bool tryLink(const std::string& from, const std::string& to) {
    return link(from.c_str(), to.c_str()) == 0 && unlink(from.c_str()) == 0;
}

// The name is taken with an empty file first, which the file then replaces.
bool tryTakeName(const std::string& from, const std::string& to) {
    const int empty =
        open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    return empty != -1 && close(empty) == 0 && std::rename(from.c_str(), to.c_str()) == 0;
}

// Leaves the cause in errno if it fails.
bool tryMove(const std::string& from, const std::string& to) {
    return tryRename(from, to, RENAME_NOREPLACE) ||
           (isUnknownHere(errno) &&
            (tryLink(from, to) || (isUnknownHere(errno) && tryTakeName(from, to))));
}

[[noreturn]] void throwNotWritten(const std::string& path, const std::string& displayPath) {
    throw UserError("Could not write " + displayPath + ": " + causeFor(path, errno) + '.');
}

void copyMode(const std::string& from, const std::string& to) {
    struct statx status = {};
    constexpr unsigned kPermissions = 07777;
    if (statx(AT_FDCWD, from.c_str(), 0, STATX_MODE, &status) == 0) {
        static_cast<void>(chmod(to.c_str(), status.stx_mode & kPermissions));
    }
}

// Another program may have taken the name by now; the file that came out must not be lost.
void putBack(const std::string& aside, const std::string& to) {
    if (!tryMove(aside, to)) {
        static_cast<void>(tryMove(aside, to + ".kept"));
    }
}

bool replaceWithoutSwap(const std::string& from, const std::string& to,
                        const std::function<bool(const std::string&)>& isExpected,
                        const std::string& displayPath) {
    const std::string aside = from + ".old";
    if (std::rename(to.c_str(), aside.c_str()) != 0) {
        return errno == ENOENT ? false : (throwNotWritten(to, displayPath), false);
    }
    const bool isDone = isExpected(aside) && tryMove(from, to);
    if (!isDone) {
        putBack(aside, to);
    }
    return isDone;
}

}  // namespace

bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& displayPath) {
    if (tryMove(from, to)) {
        return true;
    }
    if (errno != EEXIST) {
        throwNotWritten(to, displayPath);
    }
    return false;
}

bool replaceFile(const std::string& from, const std::string& to,
                 const std::function<bool(const std::string&)>& isExpected,
                 const std::string& displayPath) {
    const SignalBlock block;  // a signal would remove the file at `from`
    copyMode(to, from);
    if (!tryRename(from, to, RENAME_EXCHANGE)) {
        return errno == ENOENT ? false
               : isUnknownHere(errno)
                   ? replaceWithoutSwap(from, to, isExpected, displayPath)
                   : (throwNotWritten(to, displayPath), false);
    }
    if (isExpected(from)) {
        return true;
    }
    static_cast<void>(tryRename(from, to, RENAME_EXCHANGE));
    return false;
}

}  // namespace client
