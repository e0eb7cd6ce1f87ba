#include "system/filesystem.h"

#include <filesystem>
#include <system_error>

#include "oa_buildpath.h"

namespace veloran::system::filesystem {

bool IsFileExist(const std::string& path) {
    std::error_code unreachable;
    // The system would look for what stands before a zero byte.
    return path.find('\0') == std::string::npos &&
           std::filesystem::exists(std::filesystem::symlink_status(path, unreachable));
}

std::string GetFileNameFromPath(const std::string& path) {
    return path.substr(path.rfind('/') + 1);  // npos + 1 is 0: the whole path
}

}  // namespace veloran::system::filesystem

int oa_buildpath(const char* path) {
    const auto directory = std::filesystem::path(path).parent_path();
    if (directory.empty()) {
        return 0;
    }
    std::error_code failure;
    std::filesystem::create_directories(directory, failure);
    return std::filesystem::is_directory(directory, failure) ? 0 : -1;
}
