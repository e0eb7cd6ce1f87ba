// Files and scratch directories for tests.
#pragma once

#include <filesystem>
#include <string>

// Returns the content of the file; empty if there is none.
std::string readFile(const std::string& path);

// Returns the document with "@DATE@" for every date.
std::string withoutDates(const std::string& document);

// Writes the file, and creates its missing directories.
void writeFile(const std::string& path, const std::string& content);

// An empty working directory for a test. The destructor removes it and restores the
// previous one.
class ScratchDirectory {
public:
    // Throws if the device is not in the scratch directory.
    ScratchDirectory();
    ~ScratchDirectory();

    // Throws if `path` is not in the scratch directory. Tests call it before they write.
    void require(const std::string& path) const;

    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

private:
    std::filesystem::path previous_ = std::filesystem::current_path();
    std::filesystem::path path_;
};
