// A working directory of a test's own.
#pragma once

#include <filesystem>

// Makes an empty directory and enters it; removes it at the end and goes back to where it
// came from.
class ScratchDirectory {
public:
    ScratchDirectory();
    ~ScratchDirectory();

    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path previous_ = std::filesystem::current_path();
    std::filesystem::path path_;
};
