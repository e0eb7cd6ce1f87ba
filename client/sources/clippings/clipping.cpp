#include "client/sources/clippings/clipping.h"

#include <algorithm>
#include <array>
#include <utility>

#include "client/sources/clippings/scanning.h"
#include "client/text/affixes.h"
#include "client/text/encoding.h"
#include "client/text/line_breaks.h"
#include "text/utf8.h"

namespace client {
namespace {

constexpr std::array<std::string_view, 2> kOpeners = {"(", "\uff08"};
constexpr std::array<std::string_view, 2> kClosers = {")", "\uff09"};

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

void decodeTitleAndAuthor(Clipping& clipping) {
    clipping.rawTitle = clipping.title;
    clipping.rawAuthor = clipping.author;
    clipping.title = withoutSpaces(windows1252AsUtf8(clipping.rawTitle));
    clipping.author = withoutSpaces(windows1252AsUtf8(clipping.rawAuthor));
}

// Returns the lines without spaces around each, and without empty lines around all.
std::string textOf(std::string_view lines) {
    lines = withoutSpaces(lines);
    const bool isUtf8 = host::isUtf8(lines);
    std::string text;
    text.reserve(lines.size());
    while (!lines.empty()) {
        const std::string_view line = takeLine(lines);
        if (isUtf8) {
            text += withoutSpaces(line);
        } else {
            text += withoutSpaces(lineAsUtf8(line));
        }
        text += lines.empty() ? "" : "\n";
    }
    return text;
}

bool hasManyEastAsianLetters(std::string_view text) {
    constexpr auto kMany = 8;
    return std::count_if(text.begin(), text.end(), [](char byte) {
               return byte >= '\xE3' && byte <= '\xED';
           }) >= kMany;
}

// Returns whether the reader wrote this message instead of a passage, because too much of
// the book was marked. It may be in any language: a sentence without a full stop in angle
// brackets. Markup, code and speech in angle brackets are passages.
bool isLimitMessage(std::string_view text) {
    constexpr std::string_view kInNoMessage = "<>=\"/{}\n";
    constexpr std::string_view kEndsOfSpeech = ".,!?";
    constexpr auto kFewestSpaces = 3;
    if (text.size() < 3 || text.front() != '<' || text.back() != '>') {
        return false;
    }
    text = text.substr(1, text.size() - 2);
    return text.find_first_of(kInNoMessage) == std::string_view::npos &&
           text.front() != '!' &&
           kEndsOfSpeech.find(text.back()) == std::string_view::npos &&
           (std::count(text.begin(), text.end(), ' ') >= kFewestSpaces ||
            hasManyEastAsianLetters(text));
}

}  // namespace

std::optional<Clipping> parseClipping(std::string_view record) {
    const std::string_view title = withoutSpaces(takeLine(record));
    auto clipping = parseDetails(takeLine(record));
    if (title.empty() || isDetails(title) || !clipping) {
        return std::nullopt;
    }
    setTitleAndAuthor(*clipping, title);
    if (!host::isUtf8(title)) {
        decodeTitleAndAuthor(*clipping);
    }
    std::string& text = clipping->note.text;
    text = textOf(record);
    clipping->hasLimitMessage = isLimitMessage(text);
    if (!clipping->kind) {
        clipping->kind = text.empty() ? ClippingKind::Bookmark : ClippingKind::Highlight;
    }
    return clipping;
}

}  // namespace client
