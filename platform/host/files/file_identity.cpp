#include "files/file_identity.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace host {

std::optional<FileIdentity> identityOf(const std::string& path) {
    struct statx status = {};
    if (statx(AT_FDCWD, path.c_str(), 0, STATX_INO, &status) != 0) {
        return std::nullopt;
    }
    return FileIdentity{status.stx_dev_major, status.stx_dev_minor, status.stx_ino};
}

}  // namespace host
