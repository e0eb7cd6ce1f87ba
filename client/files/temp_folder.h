// A temporary folder, in which files can be written without interference.
#pragma once

#include <string>
#include <vector>

namespace client {

// A new folder within another one, on the same file system. Its destructor, and a signal
// that ends the program, remove it with its files, and those folders around it that were
// made for it and are still empty. One at a time.
class TempFolder {
public:
    // Makes `parent` if it is missing. Throws UserError, which names it and the cause.
    explicit TempFolder(const std::string& parent);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const { return path_; }

    // Announces a file that is going to be written there.
    void expect(const std::string& file);

    // Removes the temporary folders in `parent` whose owners were killed: they are this
    // user's, older than a minute, and nobody holds their lock.
    static void removeLeftovers(const std::string& parent);

private:
    bool makeParents(const std::string& parent);
    bool make(const std::string& parent);
    void remove() const noexcept;
    static void removeCurrent();

    std::vector<std::string> made_;  // the folders around it, outermost first
    std::string path_;
    std::vector<std::string> files_;
    int lock_ = -1;  // a descriptor of the folder, which locks it while this object lives
};

}  // namespace client
