// A text as a page shows it, put together from its pieces.
#pragma once

#include <string>
#include <string_view>

namespace client {

// Where a program has broken and indented lines, the white space with a line break in it is
// one space, or nothing at the ends of a line. All other white space stays.
class ShownText {
public:
    void add(std::string_view text);
    void breakLine() { end("\n"); }
    void breakParagraph() { end("\u2029"); }

    // Leaves nothing behind.
    std::string take();

private:
    void end(const char* mark);
    void addSpace();

    std::string text_;
    std::string space_;  // not known yet whether it counts
    bool isAtStart_ = true;
};

}  // namespace client
