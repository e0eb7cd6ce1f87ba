#include "page/move_into_place.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "page/cause.h"
#include "terminal/complaint.h"

namespace {

bool isUnknownHere(int error) {
    return error == EINVAL || error == ENOSYS || error == ENOTSUP;
}

bool moved(const char* from, const char* to) {
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (!isUnknownHere(errno) || link(from, to) != 0) {
        return false;
    }
    unlink(from);
    return true;
}

}  // namespace

bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& shown) {
    if (moved(from.c_str(), to.c_str())) {
        return true;
    }
    if (errno != EEXIST) {
        throw Complaint("Could not write " + shown + ": " + causeFor(to, errno) + '.');
    }
    return false;
}
