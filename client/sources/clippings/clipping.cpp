#include "client/sources/clippings/clipping.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "client/text/affixes.h"

namespace client {
namespace {

// With the byte order mark, which some readers write before each record.
constexpr std::array<std::string_view, 6> kSpaces = {" ",      "\t",     "\r",
                                                     "\u00a0", "\u3000", "\ufeff"};
constexpr std::array<std::string_view, 2> kOpeners = {"(", "\uff08"};
constexpr std::array<std::string_view, 2> kClosers = {")", "\uff09"};

std::string_view withoutSpaces(std::string_view text) { return trimmed(text, kSpaces); }

// Returns the offset of the parenthesis that ends the line; it may contain others.
std::size_t startOfLastParenthesis(std::string_view line) {
    std::size_t depth = 0;
    for (std::size_t at = line.size(); suffixLength(line, kClosers) > 0 && at-- > 0;) {
        const std::string_view rest = line.substr(at);
        depth += prefixLength(rest, kClosers) > 0 ? 1 : 0;
        if (prefixLength(rest, kOpeners) > 0 && --depth == 0) {
            return at;
        }
    }
    return std::string_view::npos;
}

void setTitleAndAuthor(Clipping& clipping, std::string_view line) {
    const std::size_t open = startOfLastParenthesis(line);
    clipping.title = withoutSpaces(line.substr(0, open));
    if (open != std::string_view::npos) {
        std::string_view author = line.substr(open);
        author.remove_prefix(prefixLength(author, kOpeners));
        author.remove_suffix(suffixLength(author, kClosers));
        clipping.author = withoutSpaces(author);
    }
    if (clipping.title.empty()) {  // the whole line is one parenthesis
        clipping.title = line;
        clipping.author.clear();
    }
}

std::string joined(std::vector<std::string_view> lines) {
    std::transform(lines.begin(), lines.end(), lines.begin(), withoutSpaces);
    std::string text;
    for (const std::string_view line : lines) {
        text.append(line).append("\n");
    }
    const std::size_t first = text.find_first_not_of('\n');
    const std::size_t last = text.find_last_not_of('\n');
    return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

// Returns whether the reader wrote this message instead of a passage, because too much of
// the book was marked. It may be in any language.
bool isLimitMessage(std::string_view text) {
    return text.size() > 20 && text.front() == '<' && text.back() == '>' &&
           text.find(' ') != std::string_view::npos;
}

}  // namespace

std::optional<Clipping> parseClipping(const std::vector<std::string_view>& lines) {
    if (lines.size() < 2) {
        return std::nullopt;
    }
    const std::string_view title = withoutSpaces(lines[0]);
    auto clipping = parseDetails(withoutSpaces(lines[1]));
    if (title.empty() || !clipping) {
        return std::nullopt;
    }
    setTitleAndAuthor(*clipping, title);
    std::string& text = clipping->note.text;
    text = joined({std::next(lines.begin(), 2), lines.end()});
    clipping->hasLimitMessage = isLimitMessage(text);
    if (!clipping->kind) {
        clipping->kind = text.empty() ? ClippingKind::Bookmark : ClippingKind::Highlight;
    }
    return clipping;
}

}  // namespace client
