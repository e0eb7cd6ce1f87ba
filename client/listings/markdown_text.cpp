#include "client/listings/markdown_text.h"

#include <cstddef>
#include <string_view>

#include "client/text/control_characters.h"
#include "client/text/line_breaks.h"

namespace client {
namespace {

constexpr std::string_view kMarkup = "\\`*_[<>&#|~$";
constexpr std::string_view kMarkupAtStart = "+-=:";    // at the start of a line
constexpr std::string_view kMarkupDoubled = "=%";      // around highlighted or hidden text
constexpr std::string_view kMarkupAfterNumber = ".)";  // after a number at the start

bool holds(std::string_view letters, char letter) {
    return letters.find(letter) != std::string_view::npos;
}

// Returns whether the character at `at` completes what renderers read as the start of an
// address.
bool isInAddress(std::string_view line, std::size_t at) {
    return line.substr(at, 3) == "://" || (at >= 3 && line.substr(at - 3, 4) == "www.");
}

std::string escapedMarkup(std::string_view line) {
    const std::size_t numberEnd = line.find_first_not_of("0123456789");
    std::string result;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool isMarkup =
            holds(kMarkup, line[i]) || (i == 0 && holds(kMarkupAtStart, line[i])) ||
            (i > 0 && line[i - 1] == line[i] && holds(kMarkupDoubled, line[i])) ||
            (i > 0 && i == numberEnd && holds(kMarkupAfterNumber, line[i])) ||
            isInAddress(line, i);
        result += isMarkup ? "\\" : "";
        result += line[i];
    }
    return result;
}

std::string characterReference(unsigned code) { return "&#" + std::to_string(code) + ';'; }

// Encodes spaces at both ends of a line, which renderers drop.
std::string withSpacesAtEnds(std::string line) {
    if (!line.empty() && line.back() == ' ') {
        line.replace(line.size() - 1, 1, characterReference(' '));
    }
    if (!line.empty() && line.front() == ' ') {
        line.replace(0, 1, characterReference(' '));
    }
    return line;
}

std::string escapedLine(std::string_view line) {
    return replaceControls(
        withSpacesAtEnds(escapedMarkup(line)),
        [](unsigned code, std::string_view) { return characterReference(code); });
}

// Calls `use` with each part of the text between the separators.
template <class Use>
void split(std::string_view text, std::string_view separator, const Use& use) {
    std::size_t end = 0;
    while ((end = text.find(separator)) != std::string_view::npos) {
        use(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    use(text);
}

std::string escapedParagraph(std::string_view text, const std::string& indent) {
    const std::string_view lines = text.substr(0, text.find_last_not_of('\n') + 1);
    std::string result;
    const char* lineBreak = "";
    split(lines, "\n", [&](std::string_view line) {
        result += lineBreak + indent + escapedLine(line);
        lineBreak = "\\\n";
    });
    return lines.empty() ? std::string() : result + '\n';
}

}  // namespace

std::string markdownLine(const std::string& text) { return escapedLine(oneLine(text)); }

std::string markdownParagraphs(const std::string& text, const std::string& indent) {
    const std::string emptyLine = indent.substr(0, indent.find_last_not_of(' ') + 1) + '\n';
    std::string result;
    split(withLineFeeds(text), kParagraphEnd, [&](std::string_view part) {
        const std::string paragraph = escapedParagraph(part, indent);
        const bool isFirst = result.empty() || paragraph.empty();
        result += (isFirst ? std::string() : emptyLine) + paragraph;
    });
    return result;
}

}  // namespace client
