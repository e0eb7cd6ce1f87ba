#include "scratch_files.h"

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace {

// Returns a directory in memory if it has room, because small files are slow on a disk.
// TMPDIR may set another.
std::filesystem::path scratchRoot() {
    constexpr const char* kMemory = "/dev/shm";
    std::error_code missing;
    const auto available = std::filesystem::space(kMemory, missing).available;
    const bool suits =
        std::getenv("TMPDIR") == nullptr && !missing && available > 1U << 30U;
    return suits ? kMemory : std::filesystem::temp_directory_path();
}

}  // namespace

std::string readFile(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

void writeFile(const std::string& path, const std::string& content) {
    std::filesystem::create_directories(std::filesystem::absolute(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

std::string withoutDates(const std::string& document) {
    const std::regex date("\\d{4}(-\\d\\d){2} \\d\\d(:\\d\\d){2}");
    return std::regex_replace(document, date, "@DATE@");
}

ScratchDirectory::ScratchDirectory() {
    std::string name = (scratchRoot() / "notes_export_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no scratch directory at " + name);
    }
    path_ = std::filesystem::canonical(name);
    std::filesystem::current_path(path_);
    require(NOTES_EXPORT_DEVICE_ROOT);
}

void ScratchDirectory::require(const std::string& path) const {
    const std::string target = weakly_canonical(std::filesystem::absolute(path)).string();
    if (target.compare(0, path_.string().size() + 1, path_.string() + "/") != 0) {
        throw std::logic_error("A test may not write to " + target);
    }
}

ScratchDirectory::~ScratchDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(previous_, ignored);
    std::filesystem::remove_all(path_, ignored);
}
