#include "client/sources/clippings/clipping.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "client/sources/clippings/details.h"

namespace {

// Also the byte order mark, which some readers put before each record.
constexpr std::array<std::string_view, 6> kSpaces = {" ",      "\t",     "\r",
                                                     "\u00a0", "\u3000", "\ufeff"};
constexpr std::array<std::string_view, 2> kOpeners = {"(", "\uff08"};
constexpr std::array<std::string_view, 2> kClosers = {")", "\uff09"};

template <class Strings>
std::size_t lengthAtStart(std::string_view text, const Strings& strings) {
    for (const std::string_view string : strings) {
        if (text.substr(0, string.size()) == string) {
            return string.size();
        }
    }
    return 0;
}

template <class Strings>
std::size_t lengthAtEnd(std::string_view text, const Strings& strings) {
    for (const std::string_view string : strings) {
        if (text.size() >= string.size() &&
            text.substr(text.size() - string.size()) == string) {
            return string.size();
        }
    }
    return 0;
}

std::string_view trimmed(std::string_view text) {
    while (const std::size_t length = lengthAtStart(text, kSpaces)) {
        text.remove_prefix(length);
    }
    while (const std::size_t length = lengthAtEnd(text, kSpaces)) {
        text.remove_suffix(length);
    }
    return text;
}

// Where the parenthesis opens that ends the line; others may stand within it.
std::size_t startOfLastParenthesis(std::string_view line) {
    std::size_t depth = 0;
    for (std::size_t at = line.size(); lengthAtEnd(line, kClosers) > 0 && at-- > 0;) {
        const std::string_view rest = line.substr(at);
        depth += lengthAtStart(rest, kClosers) > 0 ? 1 : 0;
        if (lengthAtStart(rest, kOpeners) > 0 && --depth == 0) {
            return at;
        }
    }
    return std::string_view::npos;
}

void setTitleAndAuthor(Clipping& clipping, std::string_view line) {
    const std::size_t open = startOfLastParenthesis(line);
    clipping.title = trimmed(line.substr(0, open));
    if (open != std::string_view::npos) {
        std::string_view author = line.substr(open);
        author.remove_prefix(lengthAtStart(author, kOpeners));
        author.remove_suffix(lengthAtEnd(author, kClosers));
        clipping.author = trimmed(author);
    }
    if (clipping.title.empty()) {  // all of the line is one parenthesis
        clipping.title = line;
        clipping.author.clear();
    }
}

std::string joined(std::vector<std::string_view> lines) {
    std::transform(lines.begin(), lines.end(), lines.begin(), trimmed);
    std::string text;
    for (const std::string_view line : lines) {
        text.append(line).append("\n");
    }
    const std::size_t first = text.find_first_not_of('\n');
    const std::size_t last = text.find_last_not_of('\n');
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

// In place of a passage, when too much of the book was marked, in the reader's language.
bool isLimitMessage(std::string_view text) {
    return text.size() > 20 && text.front() == '<' && text.back() == '>' &&
           text.find(' ') != std::string_view::npos;
}

}  // namespace

std::optional<Clipping> parseClipping(const std::vector<std::string_view>& lines) {
    if (lines.size() < 2) {
        return std::nullopt;
    }
    const std::string_view title = trimmed(lines[0]);
    const auto details = parseDetails(trimmed(lines[1]));
    if (title.empty() || !details) {
        return std::nullopt;
    }
    Clipping clipping;
    setTitleAndAuthor(clipping, title);
    clipping.text = joined({std::next(lines.begin(), 2), lines.end()});
    clipping.hasLimitMessage = isLimitMessage(clipping.text);
    clipping.kind = details->kind.value_or(clipping.text.empty() ? ClippingKind::Bookmark
                                                                 : ClippingKind::Highlight);
    clipping.page = details->page;
    clipping.location = details->location;
    clipping.timestamp = details->timestamp;
    return clipping;
}
