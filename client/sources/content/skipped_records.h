// The records of a file that could not be read, while the others were.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

class SkippedRecords {
public:
    // `record` says where the record is and what is wrong with it, for people:
    // "line 12: no title".
    void add(const std::string& record);

    std::size_t count() const { return count_; }

    // Names the first ones and how many more there are, one line each; empty when there
    // are none. `file` is the file's path.
    std::string summary(const std::string& file) const;

private:
    std::size_t count_ = 0;
    std::vector<std::string> first_;
};
