// A new folder, in which one file can be written without interference.
#pragma once

#include <string>
#include <vector>

#include "client/files/cleanup_on_signal.h"

// A new folder within another one, on the same file system. Its destructor, and a signal
// that ends the program, remove it with its file, and those folders around it that were
// made for it and are still empty.
class FreshFolder : private Leftover {
public:
    // Makes `parent` when it is missing. Throws Complaint, which names it and the cause.
    explicit FreshFolder(const std::string& parent);
    ~FreshFolder();
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;

    const std::string& path() const { return path_; }

    // Tells which file is going to be written there.
    void expect(const std::string& file);

private:
    void makeParents(const std::string& parent);
    bool make(const std::string& parent);
    void remove() const noexcept override;

    std::vector<std::string> made_;  // the folders around it, outermost first
    std::string path_;
    std::string file_;
};
