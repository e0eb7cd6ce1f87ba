#include "client/listings/csv_cell.h"

#include <algorithm>
#include <string_view>

#include "client/text/affixes.h"
#include "client/text/control_characters.h"
#include "client/text/line_breaks.h"

namespace client {
namespace {

constexpr std::string_view kFormulaStarts[] = {
    "=", "+", "-", "@", "\t", "\n", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};

bool startsFormula(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" '"), text.size()));
    return prefixLength(text, kFormulaStarts) > 0;
}

std::string withoutControls(const std::string& text) {
    return replaceControls(text, [](unsigned code, std::string_view character) {
        const bool isKept = !isControl(code) || code == '\t' || code == '\n';
        return isKept ? std::string(character) : " ";
    });
}

// Without quotes, some readers remove spaces, or use tabs and semicolons as separators.
bool needsQuotes(const std::string& text) {
    return text.find_first_of(",;\"\t\n") != std::string::npos ||
           (!text.empty() && (text.front() == ' ' || text.back() == ' '));
}

}  // namespace

std::string csvCell(const std::string& text) {
    std::string cell = withoutControls(replaced(withLineFeeds(text), kParagraphEnd, "\n"));
    if (startsFormula(cell)) {
        cell.insert(0, 1, '\'');
    }
    return needsQuotes(cell) ? '"' + replaced(cell, "\"", "\"\"") + '"' : cell;
}

}  // namespace client
