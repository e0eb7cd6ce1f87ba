#include "client/text/line_breaks.h"

#include <algorithm>
#include <array>
#include <utility>

#include "client/text/affixes.h"

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

std::string_view takeLine(std::string_view& text) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

std::string withLineFeedEnds(std::string text) {
    constexpr std::array<std::string_view, 3> kEnds = {"\r\r\n", "\r\n", "\r"};
    if (text.find('\r') == std::string::npos) {
        return text;
    }
    std::string result;
    result.reserve(text.size());
    for (std::string_view rest = text; !rest.empty();) {
        const std::string_view line = rest.substr(0, rest.find('\r'));
        result += line;
        rest.remove_prefix(line.size());
        if (const std::size_t length = prefixLength(rest, kEnds)) {
            result += '\n';
            rest.remove_prefix(length);
        }
    }
    return result;
}

std::string withLineFeeds(const std::string& text) {
    return replaced(withLineFeedEnds(text), "\u2028", "\n");
}

}  // namespace client
