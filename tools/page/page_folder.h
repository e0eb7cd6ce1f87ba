// The exported pages in a folder, by the book that each says to be of.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

class PageFolder {
public:
    // Looks at the start of each .html file in the folder, up to its dump. What cannot be
    // read is left out, and a folder that is missing is empty.
    explicit PageFolder(const std::string& folder);

    // The paths of the book's pages, the newest first.
    std::vector<std::string> pagesOf(const std::string& bookHash) const;

private:
    std::unordered_map<std::string, std::vector<std::string>> pages_;
};
