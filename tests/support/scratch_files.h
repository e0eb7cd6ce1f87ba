// Files, exported documents, and directories for them.
#pragma once

#include <filesystem>
#include <string>

// Empty when there is no such file.
std::string readFile(const std::string& path);

// The document with "@DATE@" for every date.
std::string withoutDates(const std::string& document);

// Creates the missing directories that lead to it.
void writeFile(const std::string& path, const std::string& content);

// A working directory of a test's own: makes an empty one and enters it; removes it at the
// end and goes back to where it came from.
class ScratchDirectory {
public:
    // Refuses to begin where the device would not be in the scratch directory.
    ScratchDirectory();
    ~ScratchDirectory();

    // Throws unless `path` leads into the scratch directory, which must still be the
    // working directory: a test's last look before it writes there.
    void require(const std::string& path) const;

    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

private:
    std::filesystem::path previous_ = std::filesystem::current_path();
    std::filesystem::path path_;
};
