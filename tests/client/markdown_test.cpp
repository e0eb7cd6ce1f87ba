// Text that the client writes in Markdown, as a CommonMark renderer shows it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "client/listings/markdown_text.h"
#include "client/text/control_characters.h"
#include "client/text/line_breaks.h"
#include "scratch_files.h"
#include "text/utf8.h"

namespace {

using namespace std::string_view_literals;

// Pieces of markup, addresses, references and layout, between bars.
constexpr std::string_view kPieces =
    "a|b c|1984.|1)|- |+ |-|--|---|==|=|%%|#|## |>|> |*|**|* * *|_|__|`|```|~~|~~~|[|]|"
    "[a](b)|![a](b)|[a]: b|[^1]|(c)|!|<|<b>|</p>|<!-- |<?|<http://a.b>|http://a_b.c/*d*|"
    "www.a_b.c|a@b.c|&|&amp;|&#65;|&lt|\\|\\\\|:-|: |$x$|\"|'| |  |    |\t|\n|\n|\r\n|\r|"
    "\u2028|\u2029|\u2029|\u00A0|\u3000|\uFEFF|\u202E|\u0085|\v|\f|\x1B[1m|\0|\x7F|é|白鯨|\xFF"sv;

std::vector<std::string> pieces() {
    std::istringstream text{std::string(kPieces)};
    std::vector<std::string> result = {"|", "|-|"};
    for (std::string piece; std::getline(text, piece, '|');) {
        result.push_back(piece);
    }
    return result;
}

std::string randomText(std::mt19937& random) {
    static const std::vector<std::string> all = pieces();
    std::string text;
    for (auto left = random() % 12 + 1; left > 0; --left) {
        text += all[random() % all.size()];
    }
    return text;
}

// XML has no controls but tabs and line breaks.
std::string inXml(std::string text) {
    for (const std::string_view control : {"\0"sv, "\v"sv, "\f"sv, "\x1B"sv}) {
        text = client::replaced(text, control, "\uFFFD");
    }
    return text;
}

// Returns the text as a reader shall see it: paragraphs end with a pilcrow.
std::string shownOf(const std::string& text) {
    std::istringstream paragraphs(client::replaced(
        client::withLineFeeds(inXml(host::validUtf8(text))), client::kParagraphEnd, "\1"));
    std::string shown;
    for (std::string paragraph; std::getline(paragraphs, paragraph, '\1');) {
        paragraph.erase(paragraph.find_last_not_of('\n') + 1);
        shown += paragraph + (paragraph.empty() ? "" : "¶");
    }
    return shown;
}

std::string contentOf(const std::string& element) {
    const std::size_t start = element.find('>') + 1;
    const std::string text = element.substr(start, element.rfind('<') - start);
    return client::replaced(
        client::replaced(client::replaced(client::replaced(text, "&lt;", "<"), "&gt;", ">"),
                         "&quot;", "\""),
        "&amp;", "&");
}

// Returns the text that the renderer shows, with the names of unexpected elements.
std::string rendered(const std::string& markdown) {
    writeFile("notes.md", markdown);
    EXPECT_EQ(std::system("cmark -t xml notes.md >notes.xml"), 0);
    std::istringstream lines(readFile("notes.xml"));
    std::string shown;
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(' '));
        shown += line.rfind("<text ", 0) == 0 ? contentOf(line)
                 : line == "<linebreak />"    ? "\n"
                 : line == "</paragraph>"     ? "¶"
                 : line == "<paragraph>"      ? ""
                                              : line;
    }
    return shown;
}

// As a heading, in a quotation, and as it stands.
std::string written(const std::string& text) {
    return "# " + client::markdownLine(text) + "\n\n" +
           client::markdownParagraphs(text, "> ") + '\n' +
           client::markdownParagraphs(text, "") + "\n***\n\n";
}

std::string expected(const std::string& text) {
    const std::string shown = shownOf(text);
    return "<heading level=\"1\">" + client::oneLine(text) + "</heading>" +
           (shown.empty() ? "" : "<block_quote>" + shown + "</block_quote>" + shown);
}

}  // namespace

TEST(Markdown, RendererShowsTheTextUnchanged) {
    const ScratchDirectory scratch;
    std::mt19937 random(1);
    std::vector<std::string> texts(5000);
    std::string markdown;
    for (std::string& text : texts) {
        text = randomText(random);
        markdown += written(text);
    }
    const std::string shown = rendered(markdown);
    std::size_t start = shown.find("<heading");
    for (const std::string& text : texts) {
        const std::size_t end = shown.find("<thematic_break />", start);
        ASSERT_EQ(shown.substr(start, end - start), expected(text)) << written(text);
        start = end + std::string_view("<thematic_break />").size();
    }
}
