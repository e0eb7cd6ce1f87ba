// A text that a page shows, collected from pieces.
#pragma once

#include <string>
#include <string_view>

#include "client/text/line_breaks.h"

namespace client {

// White space with a line break is indentation: it becomes one space, or nothing at the
// ends of a line. All other white space stays.
class ShownText {
public:
    void add(std::string_view text);
    void breakLine() { end("\n"); }
    void breakParagraph() { end(kParagraphEnd); }

    // Returns the text and clears it.
    std::string take();

private:
    void end(std::string_view mark);
    void addSpace();

    std::string text_;
    std::string space_;  // pending: dropped at the end of a line
    bool isAtStart_ = true;
};

}  // namespace client
