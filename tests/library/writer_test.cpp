#include "writer/writer.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

namespace {

// Plays calls in a shorthand: "(a" opens the element a, ")" closes one, "@x=1" writes an
// attribute, "'t" text, "!t" markup, "&t" escaped text alone; "|" separates them.
void play(Writer& writer, const std::string& calls) {
    std::istringstream stream(calls);
    for (std::string call; std::getline(stream, call, '|');) {
        const std::string rest = call.substr(1);
        switch (call[0]) {
            case '(':
                writer.openElt(rest.c_str());
                break;
            case ')':
                writer.closeElt();
                break;
            case '@':
                writer.writeAttr(rest.substr(0, 1).c_str(), rest.substr(2).c_str());
                break;
            case '\'':
                writer.writeText(rest.c_str());
                break;
            case '!':
                writer.writeRaw(rest.c_str());
                break;
            default:
                writer.write_escape(rest.c_str());
        }
    }
}

std::string played(const std::string& calls) {
    std::ostringstream stream;
    Writer writer(stream);
    play(writer, calls);
    return stream.str();
}

TEST(Writer, LaysElementsOutOneALine) {
    const std::pair<const char*, const char*> cases[] = {
        {"(a", "<a"},
        {"(a|(b|(c|)|)|)", "<a>\n  <b>\n    <c></c>\n  </b>\n</a>"},
        {"(a|(b|)|(c|'t|)|)", "<a>\n  <b></b>\n  <c>t</c>\n</a>"},
        {"(a|@x=1|@y=&\"|)", "<a x=\"1\" y=\"&amp;&quot;\"></a>"},
        {"(a|'x|'y|)", "<a>xy</a>"},
        {"(a|'", "<a>"},
        {"(a|!<br/>'&|!</p>|)", "<a><br/>'&</p></a>"},
        {"(a|!", "<a>"},
        {"(a|&<|@x=", "<a&lt; x=\"\""},
        {"(a|(b|(c|)|'t|)", "<a>\n  <b>\n    <c></c>t\n  </b>"},
        {"(a|(b|)|!t|)", "<a>\n  <b></b>t\n</a>"},
        {"(a|'t|(b|)|)", "<a>t\n  <b></b>\n</a>"},
        {"(a|)|)", "<a></a>"},
    };
    for (const auto& [calls, expected] : cases) {
        EXPECT_EQ(played(calls), expected) << calls;
    }
}

TEST(Writer, EscapesFiveCharactersAndNoOther) {
    std::string all;
    for (int code = 1; code < 256; code++) {
        all += static_cast<char>(code);
    }
    std::string expected = all;
    const std::pair<char, const char*> entities[] = {
        {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'\'', "&apos;"}, {'"', "&quot;"}};
    for (const auto& [byte, entity] : entities) {
        expected.replace(expected.find(byte), 1, entity);
    }
    std::ostringstream stream;
    Writer(stream).write_escape(all.c_str());
    EXPECT_EQ(stream.str(), expected);
    EXPECT_EQ(Writer::encodeString(all.c_str()), expected);
}

TEST(Writer, IgnoresTheFormattingOfItsStreamAndWritesNothingOnceItFailed) {
    const std::string calls = "(a|@x=1&2|(b|'t<|)|!raw|)|";
    const std::string markup = "<a x=\"1&amp;2\">\n  <b>t&lt;</b>raw\n</a>";
    for (std::size_t cut = 0; cut < calls.size(); cut = calls.find('|', cut) + 1) {
        std::ostringstream stream;
        Writer writer(stream);
        stream << std::left << std::setfill('*') << std::setw(30);
        play(writer, calls.substr(0, cut));
        const std::string text = stream.str();
        EXPECT_EQ(text, markup.substr(0, text.size()));
        stream.setstate(std::ios::badbit);
        play(writer, calls.substr(cut));
        EXPECT_EQ(stream.str(), text);
        EXPECT_EQ(writer.depth(), 0U);
    }
}

}  // namespace
