// The first lines of a list that may be long.
#pragma once

#include <cstddef>
#include <string>

namespace client {

class FirstFew {
public:
    void add(const std::string& line) {
        if (++count_ <= kMaxNamed) {
            lines_ += "  " + line + "\n";
        }
    }

    bool isEmpty() const { return count_ == 0; }

    // Returns the first lines, indented, and the number of the rest.
    std::string text() const {
        return count_ <= kMaxNamed
                   ? lines_
                   : lines_ + "  and " + std::to_string(count_ - kMaxNamed) + " more\n";
    }

private:
    static constexpr std::size_t kMaxNamed = 3;
    std::size_t count_ = 0;
    std::string lines_;
};

}  // namespace client
