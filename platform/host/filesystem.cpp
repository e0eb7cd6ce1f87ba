#include "system/filesystem.h"

#include <filesystem>
#include <system_error>

namespace veloran::system::filesystem {

bool IsFileExist(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        return false;  // the system would look up the part before it
    }
    std::error_code failure;
    const auto status = std::filesystem::symlink_status(path, failure);
    // The status of a file dated after 2038 does not fit into times of 32 bits.
    return std::filesystem::exists(status) || failure == std::errc::value_too_large;
}

std::string GetFileNameFromPath(const std::string& path) {
    return path.substr(path.rfind('/') + 1);  // npos + 1 is 0: the whole path
}

}  // namespace veloran::system::filesystem
