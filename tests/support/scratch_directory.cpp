#include "scratch_directory.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

ScratchDirectory::ScratchDirectory() {
    std::string name =
        (std::filesystem::temp_directory_path() / "notes_export_XXXXXX").string();
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
