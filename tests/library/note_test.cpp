#include <cmath>
#include <ctime>

#include "device_test.h"

namespace library_tests {
namespace {

using NoteRecord = DeviceTest;
using Rendering = DeviceTest;
using scripted::makeNote;
using veloran::NotesExporterImpl;
using veloran::utilities::Note;

TEST_F(NoteRecord, ValueIsStampedWithNowAndCopiedWhole) {
    const std::time_t before = std::time(nullptr);
    Note::Value value;
    EXPECT_GE(value.timestamp, before);
    EXPECT_LE(value.timestamp, std::time(nullptr));
    value.str = "text";
    value.json = Json::Value("json");
    value.timestamp = -5;
    const Note::Value copy = value;
    EXPECT_EQ(copy.str, "text");
    EXPECT_EQ(copy.json, Json::Value("json"));
    EXPECT_EQ(copy.timestamp, -5);
}

TEST_F(NoteRecord, LookupGivesTheStoredValueElseOneSharedDefault) {
    const Note note = makeNote({2, "u"});
    EXPECT_EQ(&note[Note::Tag::Uuid], &note.tags.at(Note::Tag::Uuid));

    const Note empty;
    const Note::Value& shared = empty[Note::Tag::Uuid];
    EXPECT_EQ(&note[static_cast<Note::Tag>(-1)], &shared);
    EXPECT_EQ(shared.str, "");
    EXPECT_FALSE(shared.json);
    EXPECT_TRUE(empty.tags.empty());
}

TEST_F(NoteRecord, PageLabelIsTheTruncatedNumber) {
    const std::pair<double, const char*> cases[] = {
        {-0.0, "0"},          {41.999, "41"},
        {-2.5, "-2"},         {-0.5, "0"},
        {1234567, "1234567"}, {2147483647.5, "2147483647"},
        {2147483648.0, ""},   {-2147483648.9, "-2147483648"},
        {-2147483649.0, ""},  {1e300, ""},
        {HUGE_VAL, ""},       {-HUGE_VAL, ""},
        {std::nan(""), ""},
    };
    for (const auto& [page, label] : cases) {
        script().pages["p"] = page;
        const Note note = makeNote({1, "", "", "", "", "", "p"});
        EXPECT_EQ(NotesExporterImpl::getNotePage(note), label) << page;
    }
}

// The lines of a note with that text or comment, or with both.
std::string rendered(const std::string& text, const std::string& comment) {
    return written([&](Writer& w) {
        const auto note = makeNote({0, "", "<c'>&\"", text, "", comment});
        EXPECT_EQ(NotesExporterImpl::writeBookmark(w, note), 0);
        EXPECT_EQ(w.depth(), 1U);
    });
}

std::string block(const std::string& content) {
    return ">\n  <div id=\"\" class=\"bookmark bm-color-&lt;c&apos;&gt;&amp;&quot;\">"
           "\n    <p class=\"bm-page\"></p>" +
           content + "\n  </div>";
}

TEST_F(Rendering, TurnsSeparatorsIntoMarkupAndMarkupIntoText) {
    const std::pair<std::string, std::string> cases[] = {
        {"<>\"'&", "&lt;&gt;&quot;&apos;&amp;"},
        {"one\xE2\x80\xA9two", "one</p><p>two"},
        {"one\xE2\x80\xA8two\nthree", "one<br/>two<br/>three"},
        {"\n\n\xE2\x80\xA9\xE2\x80\xA9", "<br/><br/></p><p></p><p>"},
        {"one\r\ntwo\rthree\tfour", "one\r<br/>two\rthree\tfour"},
        {std::string("seen\0lost\n", 10), "seen"},
        {std::string("\0lost", 5), ""},
        {"cut\xE2\x80", "cut\xE2\x80"},
        {"cut\xE2", "cut\xE2"},
        {"\xE2\x80\xA7\xE2\x80\xAA\xE2\x81\xA8", "\xE2\x80\xA7\xE2\x80\xAA\xE2\x81\xA8"},
        {"\xE2\x80\xE2\x80\xA8\xE2\xE2\x80\xA9", "\xE2\x80<br/>\xE2</p><p>"},
        {"\xE2\x80\n\xA8", "\xE2\x80<br/>\xA8"},
    };
    for (const auto& [text, converted] : cases) {
        const std::string lines = "\n      <p>" + converted + "</p>\n    </div>";
        const std::string marked = "\n    <div class=\"bm-text\">" + lines;
        const std::string comment = "\n    <div class=\"bm-note\">" + lines;
        EXPECT_EQ(rendered(text, ""), block(marked));
        EXPECT_EQ(rendered("", text), block(comment));
        EXPECT_EQ(rendered(text, text), block(marked + comment));
    }
}

}  // namespace
}  // namespace library_tests
