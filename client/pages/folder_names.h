// The names of the pages in a folder, and the names that are free there.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

namespace client {

// A page is called "STEM.html", or with a counter "STEM (1).html".
class FolderNames {
public:
    // Lists the folder once. A folder that is missing or cannot be listed is empty.
    explicit FolderNames(const std::string& folder);

    // Adds a name that has come since.
    void add(const std::string& name);

    // Returns the names of this stem, the one without a counter first.
    std::vector<std::string> of(const std::string& stem) const;

    // Returns the first name of this stem that nothing has.
    std::string firstFree(const std::string& stem) const;

private:
    std::map<std::string, std::set<int>> counters_;  // by stem; 0: no counter
};

}  // namespace client
