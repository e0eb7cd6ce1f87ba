#include "scratch_directory.h"

#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace {

// In memory where there is room, unless the environment says where: a disk makes the tests
// wait for their many small files.
std::filesystem::path placeForFiles() {
    constexpr const char* kMemory = "/dev/shm";
    constexpr std::uintmax_t kRoom = std::uintmax_t{1} << 30;
    std::error_code missing;
    const auto available = std::filesystem::space(kMemory, missing).available;
    const bool suits = std::getenv("TMPDIR") == nullptr && !missing && available > kRoom;
    return suits ? kMemory : std::filesystem::temp_directory_path();
}

}  // namespace

ScratchDirectory::ScratchDirectory() {
    std::string name = (placeForFiles() / "notes_export_XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) {
        throw std::runtime_error("no scratch directory at " + name);
    }
    path_ = name;
    std::filesystem::current_path(path_);
}

ScratchDirectory::~ScratchDirectory() {
    std::error_code ignored;
    std::filesystem::current_path(previous_, ignored);
    std::filesystem::remove_all(path_, ignored);
}
