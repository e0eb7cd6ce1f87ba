// The text and the page of a note in the document.
#include <limits>
#include <sstream>

#include "device_test.h"

namespace {

using RenderedNote = DeviceTest;
using Limits = std::numeric_limits<double>;

// Returns the markup of a note with these fields, whose identifier must be 1.
std::string rendered(const scripted::NoteFields& fields) {
    scripted::addNote(kBook, fields);
    std::ostringstream stream;
    Writer writer(stream);
    veloran::NotesExporterImpl::writeBookmark(writer, script().notes["key-1"]);
    EXPECT_EQ(writer.depth(), 0U);
    return stream.str();
}

TEST_F(RenderedNote, TextBecomesParagraphs) {
    const struct {
        const char* name;
        std::string text;
        std::string paragraphs;
    } rows[] = {
        {"line separator", "a\xE2\x80\xA8z", "a<br/>z"},
        {"paragraph separator", "a\xE2\x80\xA9z", "a</p><p>z"},
        {"line feed", "\n", "<br/>"},
        {"carriage return", "a\r\nb\rc", "a\r<br/>b\rc"},
        {"markup", "<br/> & \"'", "&lt;br/&gt; &amp; &quot;&apos;"},
        {"U+22A8", "a\xE2\x8A\xA8z", "a\xE2\x8A\xA8z"},
        {"U+22A9", "a\xE2\x8A\xA9z", "a\xE2\x8A\xA9z"},
        {"U+202A", "a\xE2\x80\xAAz", "a\xE2\x80\xAAz"},
        {"U+3028", "a\xE3\x80\xA8z", "a\xE3\x80\xA8z"},
        {"half a separator", "a\xE2\x80", "a\xE2\x80"},
        {"zero byte inside", std::string("a\0b", 3), "a"},
        {"zero byte first", std::string("\0b", 2), ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        script() = {};
        EXPECT_EQ(rendered({1, "", "", row.text}),
                  "<div id=\"\" class=\"bookmark bm-color-note\">\n"
                  "  <p class=\"bm-page\"></p>\n"
                  "  <div class=\"bm-text\">\n    <p>" +
                      row.paragraphs + "</p>\n  </div>\n</div>");
    }
}

TEST_F(RenderedNote, PageLosesItsFraction) {
    const struct {
        double page;
        std::string label;
    } rows[] = {
        {0.0, "0"},
        {-0.5, "0"},
        {-2.5, "-2"},
        {41.999, "41"},
        {2147483647.9, "2147483647"},
        {2147483648.0, ""},
        {-2147483648.9, "-2147483648"},
        {-2147483649.0, ""},
        {1e300, ""},
        {Limits::infinity(), ""},
        {-Limits::infinity(), ""},
        {Limits::quiet_NaN(), ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.page);
        script() = {};
        script().pages["somewhere"] = row.page;
        EXPECT_EQ(rendered({1, "", "", "", "", "", "somewhere"}),
                  "<div id=\"\" class=\"bookmark bm-color-note\">\n"
                  "  <p class=\"bm-page\">" +
                      row.label + "</p>\n</div>");
    }
}

}  // namespace
