// Text that the client writes in Markdown, as a CommonMark renderer shows it.
#include <gtest/gtest.h>

#include <cstdio>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "listings/markdown_text.h"
#include "listings/text_breaks.h"
#include "scratch_files.h"
#include "terminal/one_line.h"
#include "text/utf8.h"

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPieces[] = {"a"sv,
                                        "b c"sv,
                                        "1984."sv,
                                        "1)"sv,
                                        "- "sv,
                                        "+ "sv,
                                        "-"sv,
                                        "--"sv,
                                        "---"sv,
                                        "=="sv,
                                        "="sv,
                                        "%%"sv,
                                        "#"sv,
                                        "## "sv,
                                        ">"sv,
                                        "> "sv,
                                        "*"sv,
                                        "**"sv,
                                        "* * *"sv,
                                        "_"sv,
                                        "__"sv,
                                        "`"sv,
                                        "```"sv,
                                        "~~"sv,
                                        "~~~"sv,
                                        "["sv,
                                        "]"sv,
                                        "[a](b)"sv,
                                        "![a](b)"sv,
                                        "[a]: b"sv,
                                        "[^1]"sv,
                                        "(c)"sv,
                                        "!"sv,
                                        "<"sv,
                                        "<b>"sv,
                                        "</p>"sv,
                                        "<!-- "sv,
                                        "<?"sv,
                                        "<http://a.b>"sv,
                                        "http://a_b.c/*d*"sv,
                                        "www.a_b.c"sv,
                                        "a@b.c"sv,
                                        "&"sv,
                                        "&amp;"sv,
                                        "&#65;"sv,
                                        "&lt"sv,
                                        "\\"sv,
                                        "\\\\"sv,
                                        "|"sv,
                                        "|-|"sv,
                                        ":-"sv,
                                        ": "sv,
                                        "$x$"sv,
                                        "\""sv,
                                        "'"sv,
                                        " "sv,
                                        "  "sv,
                                        "    "sv,
                                        "\t"sv,
                                        "\n"sv,
                                        "\n"sv,
                                        "\r\n"sv,
                                        "\r"sv,
                                        "\u2028"sv,
                                        "\u2029"sv,
                                        "\u2029"sv,
                                        "\u00A0"sv,
                                        "\u3000"sv,
                                        "\uFEFF"sv,
                                        "\u202E"sv,
                                        "\u0085"sv,
                                        "\v"sv,
                                        "\f"sv,
                                        "\x1B[1m"sv,
                                        "\0"sv,
                                        "\x7F"sv,
                                        "é"sv,
                                        "白鯨"sv,
                                        "\xFF"sv};

std::string randomText(std::mt19937& random) {
    std::string text;
    for (auto left = random() % 12 + 1; left > 0; --left) {
        text += kPieces[random() % std::size(kPieces)];
    }
    return text;
}

// XML has no controls but tabs and line breaks.
std::string inXml(std::string text) {
    for (const std::string_view control : {"\0"sv, "\v"sv, "\f"sv, "\x1B"sv}) {
        text = replaced(text, control, "\uFFFD");
    }
    return text;
}

// What a reader shall see: paragraphs end with a pilcrow.
std::string shownOf(const std::string& text) {
    std::istringstream paragraphs(
        replaced(withLineFeeds(inXml(host::validUtf8(text))), kParagraphEnd, "\1"));
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
    return replaced(
        replaced(replaced(replaced(text, "&lt;", "<"), "&gt;", ">"), "&quot;", "\""),
        "&amp;", "&");
}

// What the renderer shows, with the names of all elements but those that are expected.
std::string rendered(const std::string& markdown) {
    writeFile("notes.md", markdown);
    std::FILE* pipe = popen("cmark -t xml notes.md >notes.xml", "r");
    EXPECT_EQ(pipe == nullptr ? -1 : pclose(pipe), 0);
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
    return "# " + markdownLine(text) + "\n\n" + markdownParagraphs(text, "> ") + '\n' +
           markdownParagraphs(text, "") + "\n***\n\n";
}

std::string expected(const std::string& text) {
    const std::string shown = shownOf(text);
    return "<heading level=\"1\">" + oneLine(text) + "</heading>" +
           (shown.empty() ? "" : "<block_quote>" + shown + "</block_quote>" + shown);
}

}  // namespace

TEST(Markdown, ShowsJustTheText) {
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
