#include "client/sources/exported_page/shown_text.h"

#include <algorithm>
#include <utility>

namespace client {

void ShownText::add(std::string_view text) {
    constexpr std::string_view kSpaces = " \t\r\n";
    while (!text.empty()) {
        const std::size_t spaces = std::min(text.find_first_not_of(kSpaces), text.size());
        space_ += text.substr(0, spaces);
        text.remove_prefix(spaces);
        const std::size_t letters = std::min(text.find_first_of(kSpaces), text.size());
        if (letters > 0) {
            addSpace();
            text_ += text.substr(0, letters);
            isAtStart_ = false;
        }
        text.remove_prefix(letters);
    }
}

void ShownText::addSpace() {
    const std::string space = std::exchange(space_, {});
    if (space.find('\n') == std::string::npos) {
        text_ += space;
    } else if (!isAtStart_) {
        text_ += ' ';
    }
}

void ShownText::end(std::string_view mark) {
    isAtStart_ = true;  // also for text before the mark
    addSpace();
    text_ += mark;
}

std::string ShownText::take() {
    end("");
    return std::exchange(text_, {});
}

}  // namespace client
