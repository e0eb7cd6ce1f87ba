// The exported pages in a folder, by the book that each says to be of.
#pragma once

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace client {

class PageFolder {
public:
    // Looks at the start of each .html file in the folder, up to its dump. What cannot be
    // read is left out, and a folder that is missing is empty.
    explicit PageFolder(std::string folder);

    // Looks at the files that have come since.
    void lookAgain();

    // The paths of the book's pages, the newest first.
    std::vector<std::string> pagesOf(const std::string& bookHash) const;

private:
    const std::string folder_;
    std::unordered_set<std::string> seen_;
    std::unordered_map<std::string, std::vector<std::string>> pages_;
};

}  // namespace client
