#include "writer/writer.h"

#include <gtest/gtest.h>

#include <functional>
#include <iomanip>
#include <sstream>

namespace {

// Every kind of call, also in orders that no export uses.
const std::function<void(Writer&)> kCalls[] = {
    [](Writer& w) { w.openElt("a").writeAttr("x", "1&2").writeAttr("y", ""); },
    [](Writer& w) { w.writeText("<b='c' d=\"e\">&;\n\x7f").writeText("\xff"); },
    [](Writer& w) { w.openElt("b").openElt("c").closeElt(); },
    [](Writer& w) { w.writeText("after"); },
    [](Writer& w) { w.closeElt(); },
    [](Writer& w) { w.writeRaw(("<raw/>&" + Writer::encodeString("a\"b>c")).c_str()); },
    [](Writer& w) { w.openElt("d").writeText("").closeElt(); },
    [](Writer& w) { w.openElt("e").writeRaw("").closeElt(); },
    [](Writer& w) { w.openElt("f").write_escape(">"); },
    [](Writer& w) { w.closeElt().closeElt().closeElt(); },
};
constexpr char kMarkup[] =
    "<a x=\"1&amp;2\" y=\"\">&lt;b=&apos;c&apos; d=&quot;e&quot;&gt;&amp;;\n\x7f\xff\n  "
    "<b>\n    <c></c>after\n  </b><raw/>&a&quot;b&gt;c"
    "\n  <d></d>\n  <e></e>\n  <f&gt;></f>\n</a>";

TEST(Writer, IgnoresFormattingAndStopsAfterFailure) {
    for (std::size_t failure = 0; failure <= std::size(kCalls); ++failure) {
        SCOPED_TRACE("failure before call " + std::to_string(failure));
        std::ostringstream stream;
        Writer writer(stream);
        stream << std::left << std::setfill('*') << std::setw(30);
        std::string text;
        for (const auto& call : kCalls) {
            if (&call == kCalls + failure) {
                text = stream.str();
                stream.setstate(std::ios::badbit);
            }
            call(writer);
        }
        EXPECT_EQ(writer.depth(), 0U);
        const bool fails = failure < std::size(kCalls);
        EXPECT_EQ(stream.str(), fails ? text : kMarkup);
        EXPECT_EQ(text, std::string(kMarkup).substr(0, text.size()));
    }
}

TEST(Writer, WritesAnyDepthAndAnyLength) {
    const std::string runs = std::string(3000, 'x') + '&' + std::string(9000, 'y');
    const std::string escaped = std::string(3000, 'x') + "&amp;" + std::string(9000, 'y');
    std::ostringstream stream;
    Writer writer(stream);
    std::string start, end;
    for (std::size_t depth = 0; depth < 20; ++depth) {
        const std::string line = '\n' + std::string(2 * depth, ' ');
        writer.openElt("e").writeAttr("a", runs.c_str(), "<").writeRaw(runs.c_str());
        start += (depth == 0 ? "" : line) + "<e a=\"" + escaped + "&lt;\">" + runs;
        end.insert(0, (depth == 19 ? "" : line) + "</e>");
    }
    while (writer.depth() != 0) {
        writer.closeElt();
    }
    EXPECT_TRUE(stream.str() == start + end);
}

}  // namespace
