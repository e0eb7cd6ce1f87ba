#include "client/text/line_breaks.h"

namespace client {

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    std::size_t found = 0;
    while ((found = text.find(from, start)) != std::string_view::npos) {
        result.append(text.substr(start, found - start)).append(to);
        start = found + from.size();
    }
    return result.append(text.substr(start));
}

std::string withLineFeeds(const std::string& text) {
    return replaced(replaced(replaced(text, "\r\n", "\n"), "\r", "\n"), "\u2028", "\n");
}

}  // namespace client
