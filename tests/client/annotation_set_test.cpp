// Annotation sets, of the draft and of older collections.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "cases.h"
#include "client/sources/w3c/color.h"
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
         R"({"selector": {"type": "ProgressionSelector", "value": 0.25}}},
            {"target": {"selector": {"value": "progression=0.5"}}},
            {"target": {"meta": {"progression": 1}})",
         "|||p.0250000\n|||p.0500000\n|||p.1000000\n"},
        {"the kind that most have",
         R"j({"selector": {"value": "epubcfi(/6!/4)"}, "meta": {"progression": 1}}},
            {"target": {"meta": {"progression": 0}})j",
         "|||p.1000000\n|||p.0000000\n"},
        {"files of a book",
         R"({"source": "a10", "meta": {"progression": 1}}},
            {"target": {"source": {"id": "b"}, "meta": {"progression": 0}})",
         "|||p.0000000010.a10.1000000\n|||p.b.0000000\n"},
        {"files, and CFIs of a file and of the book",
         R"j({"source": "a", "selector": {"value": "epubcfi(/4:2)"}}},
            {"target": {"source": "b", "selector": {"value": "epubcfi(/6!/4)"}})j",
         "|||c.a.0000000004.0000000002\n|||c.0000000006.0000000004\n"},
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

TEST(AnnotationColor, BecomesNearestName) {
    std::istringstream pairs(
        "#ffe400 yellow #FE9B05 orange #d00000 red #ff80c0 pink #9050d0 purple #0000ff "
        "blue "
        "#00ffff cyan #00ff00 green #808080 grey mauve mauve #ff0 #ff0 #gggggg #gggggg");
    for (std::string text, name; pairs >> text >> name;) {
        EXPECT_EQ(client::colorNamed(text), name) << text;
    }
}

}  // namespace
