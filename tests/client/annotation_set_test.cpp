// Annotation sets, of the draft and of older collections.
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "cases.h"
#include "sample_source.h"

namespace {

TEST(Annotation, BecomesNote) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"passage",
         R"("target": {"selector": {"type": "TextQuoteSelector", "exact": "a"}})",
         "i|||a|||\n"},
        {"alternatives",
         R"("target": {"selector": [{"type": "CssSelector", "exact": "b"},
            {"type": "TextQuoteSelector"}, {"type": "TextQuoteSelector", "exact": "a"}]})",
         "i|||a|||\n"},
        {"nested passage",
         R"("target": {"selector": [{"type": "CssSelector", "refinedBy":
            [{"refinedBy": {"type": "TextQuoteSelector", "exact": "a"}}]}]})",
         "i|||a|||\n"},
        {"page", R"("target": {"meta": {"page": "12.5"}})", "i|12.5|||||\n"},
        {"page as a number", R"("target": {"meta": {"page": 7}})", "i|7|||||\n"},
        {"Roman page", R"("target": {"meta": {"page": "XI"}})", "i||||||\n"},
        {"page without end", R"("target": {"meta": {"page": "inf"}})", "i||||||\n"},
        {"comment and colour", R"("target": "c", "body": {"value": "a", "color": "pink"})",
         "i||pink||a||\n"},
        {"several bodies",
         R"("target": "c", "body": [{"value": "a", "color": "#ff8fc7"}, "http://x/y",
            {"value": ""}, {"value": {"en": "b"}, "color": ""}])",
         "i||pink||a\u2029b||\n"},
        {"creation", R"("target": "c", "created": "2026-03-07T09:05:01+01:00")",
         "i||||||2026-03-07T08:05:01Z\n"},
        {"change", R"("target": "c", "created": "2026-03-07", "modified": "2026-03-08")",
         "i||||||2026-03-08T00:00:00Z\n"},
        {"change that cannot be read",
         R"("target": "c", "created": "2026-03-07", "modified": "today")",
         "i||||||2026-03-07T00:00:00Z\n"},
        {"values of other types",
         R"("target": {"selector": 1, "meta": [2]}, "body": 3, "created": 4)", "i||||||\n"},
        {"several targets", R"("target": [{"meta": {"page": 1}}, {"meta": {"page": 2}}])",
         "i|1|||||\n"},
    };
    expectEach(cases, [](const std::string& members) {
        return shownNotes(R"({"items": [{"id": "i", )" + members + "}]}");
    });
}

TEST(Annotation, HasPlace) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"last heading",
         R"({"meta": {"headings": ["a", {"level": 1, "txt": "b"}, {"level": 2}]}})",
         "||b|\n"},
        {"one heading", R"({"meta": {"headings": {"title": {"en": "a"}}}})", "||a|\n"},
        {"CFI", R"j({"selector": {"value": "epubcfi(/6/4[c1]!/4[b^]2]/3:10)"}})j",
         "|||c.0000000006.0000000004.0000000004.0000000003.0000000010\n"},
        {"range of CFIs",
         R"j({"selector": [{}, {"value": "#epubcfi(/6!/4[a,b],/2:1,/2:9)"}]})j",
         "|||c.0000000006.0000000004.0000000002.0000000001\n"},
        {"progressions",
         R"({"source": "a", "selector": {"type": "ProgressionSelector", "value": 0.25}}},
            {"target": {"selector": {"value": "progression=0.5"}}},
            {"target": {"meta": {"progression": 1}})",
         "|||p.-a.0250000\n|||p.-.0500000\n|||p.-.1000000\n"},
        {"the kind that most have",
         R"j({"selector": {"value": "epubcfi(/6!/4)"}, "meta": {"progression": 1}}},
            {"target": {"meta": {"progression": 0}})j",
         "|||p.-.1000000\n|||p.-.0000000\n"},
        {"files of a book",
         R"({"source": "a10", "meta": {"progression": 1}}},
            {"target": {"source": {"id": "b"}, "meta": {"progression": 0}})",
         "|||p.0000000010-a10.1000000\n|||p.-b.0000000\n"},
        {"files, and CFIs of a file and of the book",
         R"j({"source": "a", "selector": {"value": "epubcfi(/4:2)"}}},
            {"target": {"source": "b", "selector": {"value": "epubcfi(/6!/4)"}})j",
         "|||c.-a.0000000004.0000000002\n|||c.0000000006.0000000004\n"},
    };
    expectEach(cases, [](const std::string& target) {
        return shownNotes(R"({"label": "E", "items": [{"target": )" + target + "}]}",
                          [](const client::Note& note) { return show(note.place); });
    });
}

TEST(AnnotationSet, NamesItsBook) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"("about": {"dc:title": "E", "dc:creator": "A"})", "E by A: i\n"},
        {R"("about": {"dc:title": "E", "dc:creator": ["A", {"name": "B"}, ""]})",
         "E by A; B: i\n"},
        {R"("about": {"title": {"@language": "en", "@value": "E"}, "creator": {"name": {"en": "A"}}})",
         "E by A: i\n"},
        {R"("about": {"dc:title": {"de": "E", "en": "x"}}, "label": "L")", "E by : i\n"},
        {R"("about": {"dc:title": ""}, "label": "L")", "L by : i\n"},
        {R"("type": "AnnotationPage")", "c.xhtml by : i\n"},
    };
    expectEach(cases, [](const std::string& members) {
        return shownSample(
            "\uFEFF{" + members +
            R"(, "items": 1, "first": {"items": [{"id": "i", "target": "c.xhtml"}]}})");
    });
}

TEST(AnnotationSet, FaultIsNamedWithItsPlace) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"({"items": [{"target": null}, 5]})",
         "Not everything in it could be read:\n  items[0]: no target\n  items[1]: no "
         "target\n"},
        {R"({"type": "AnnotationSet"})", "sample: \"items\" is missing or not an array"},
        {R"({"@context": [], "items": 1})", "sample: \"items\" is missing or not an array"},
        {R"({"items": [)", "Cannot read sample as JSON: line 1, column 12: Invalid value."},
    };
    expectEach(cases, shownSample);
}

std::string annotationsOf(const client::Book& book, const client::Note& note) {
    std::ostringstream out;
    const auto listing = client::kAnnotationFormat.listNotes(out, {});
    listing->startBook(book);
    listing->add(note);
    listing->end();
    return out.str();
}

TEST(AnnotationSet, GivesItsNotesBack) {
    const ScratchDirectory scratch;
    const std::vector<std::string> texts = {
        "",        "a\u2028b\u2029c\n\r\t", "\"\\%41 \u202e\x1b", std::string("\0;", 2),
        "; #ff00", "\U0010FFFF\uFFFE"};
    const std::vector<std::string> uuids = {"7A1e7fb0-5b1c-4d0e-8b0f-3a1d1c2b0002",
                                            "7a1e7fb0-5b1c-4d0e-8b0f-3a1d1c2b000",
                                            "7a1e7fb0-5b1c-4d0e-8b0f-3a1d1c2b000g",
                                            "urn:uuid:1",
                                            "urn:x-notes:%41",
                                            "https://example.org/a%2F1?b#c",
                                            "file:///a b",
                                            "1:2",
                                            "\xFF%41/\u00e9",
                                            ":"};
    const std::vector<double> pages = {0, 12.1, -1, 1e-9, 1e300};
    const std::vector<std::int64_t> times = {0, -1, -62167219200, 1772841600, 253402300799};
    std::mt19937 random;
    const auto anyOf = [&](const auto& values) { return values[random() % values.size()]; };
    for (int round = 0; round < 500; ++round) {
        client::Note note;
        note.uuid = anyOf(uuids);
        note.text = anyOf(texts);
        note.comment = anyOf(texts);
        note.color = anyOf(texts);
        note.place.chapter = anyOf(texts);
        note.place.page = random() % 2 == 0 ? std::optional(anyOf(pages)) : std::nullopt;
        note.time = anyOf(times);
        const client::Book book = {"ab", anyOf(texts), anyOf(texts), anyOf(texts)};
        const std::string set = annotationsOf(book, note);
        const client::IncomingBook loaded = readSample(set).books.at(0);
        const client::Note back = *loaded.notes.begin();
        EXPECT_EQ(loaded.book.author, book.author);
        EXPECT_EQ(loaded.book.title, nameOf(book)) << set;
        EXPECT_EQ(show(back) + show(back.place), show(note) + show(note.place)) << set;
        EXPECT_EQ(annotationsOf(book, back), set);
    }
}

TEST(AnnotationColor, BecomesNearestName) {
    const ScratchDirectory scratch;
    std::istringstream pairs(
        "#ffe400 yellow #FE9B05 orange #d00000 red #ff80c0 pink #9050d0 purple #0000ff "
        "blue "
        "#00ffff cyan #00ff00 green #808080 grey mauve mauve #ff0 #ff0 #gggggg #gggggg");
    for (std::string text, name; pairs >> text >> name;) {
        EXPECT_EQ(shownNotes(
                      R"({"items": [{"target": "c", "body": {"color": ")" + text + "\"}}]}",
                      [](const client::Note& note) { return note.color; }),
                  name + '\n')
            << text;
    }
}

}  // namespace
