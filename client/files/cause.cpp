#include "client/files/cause.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace client {

std::string cause(int error) { return std::generic_category().message(error); }

std::string causeFor(const std::string& path, int error) {
    const std::filesystem::path file(path);
    const std::size_t length = file.filename().string().size();
    const long limit = pathconf(file.parent_path().c_str(), _PC_NAME_MAX);
    if (error != ENAMETOOLONG || limit < 0 || length <= static_cast<std::size_t>(limit)) {
        return cause(error);
    }
    constexpr std::size_t kEnding = 5;  // ".html"
    return cause(error) + ": it has " + std::to_string(length) + " bytes, the limit is " +
           std::to_string(limit) + ". A title of more than " +
           std::to_string(static_cast<std::size_t>(limit) - kEnding) +
           " bytes cannot be exported";
}

}  // namespace client
