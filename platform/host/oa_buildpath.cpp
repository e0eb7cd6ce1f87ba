#include "oa_buildpath.h"

#include <filesystem>
#include <system_error>

int oa_buildpath(const char* path) {
    const auto directory = std::filesystem::path(path).parent_path();
    if (directory.empty()) {
        return 0;
    }
    std::error_code failure;
    std::filesystem::create_directories(directory, failure);
    return std::filesystem::is_directory(directory, failure) ? 0 : -1;
}
