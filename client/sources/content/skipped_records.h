// The records of a file that could not be read, while the others were.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace client {

class SkippedRecords {
public:
    // `record` names the record's place and what is wrong with it, for people:
    // "line 12: no title".
    void add(const std::string& record);

    // Names the first ones and how many more there are, one line each; empty if there is
    // none. `file` is the file's path.
    std::string summary(const std::string& file) const;

private:
    std::size_t count_ = 0;
    std::vector<std::string> first_;
};

}  // namespace client
