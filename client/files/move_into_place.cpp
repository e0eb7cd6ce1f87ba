#include "client/files/move_into_place.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "client/error.h"
#include "client/files/cause.h"
#include "client/files/signals.h"

namespace client {
namespace {

bool isUnknownHere(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

bool tryMove(const char* from, const char* to) {
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (!isUnknownHere(errno) || link(from, to) != 0) {
        return false;
    }
    unlink(from);
    return true;
}

// Where files cannot change places, the old one is replaced.
bool trySwap(const char* from, const char* to) {
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_EXCHANGE) == 0 ||
           (isUnknownHere(errno) && std::rename(from, to) == 0);
}

[[noreturn]] void throwNotWritten(const std::string& path, const std::string& shown) {
    throw UserError("Could not write " + shown + ": " + causeFor(path, errno) + '.');
}

}  // namespace

bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& shown) {
    if (tryMove(from.c_str(), to.c_str())) {
        return true;
    }
    if (errno != EEXIST) {
        throwNotWritten(to, shown);
    }
    return false;
}

bool swapFiles(const std::string& from, const std::string& to,
               const host::FileIdentity& old, const std::string& shown) {
    const SignalBlock block;  // a signal would remove the file at `from`
    if (host::identityOf(to) != old) {
        return false;
    }
    if (!trySwap(from.c_str(), to.c_str())) {
        throwNotWritten(to, shown);
    }
    // Another program may have put its file there after the check.
    const auto taken = host::identityOf(from);
    if (taken && taken != old) {
        static_cast<void>(trySwap(from.c_str(), to.c_str()));
        return false;
    }
    return true;
}

}  // namespace client
