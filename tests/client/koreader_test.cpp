// Sidecars of KOReader, and the tables of Lua that they are.
#include <gtest/gtest.h>

#include <string>

#include "cases.h"
#include "client/files/whole_file.h"
#include "client/sources/koreader/sidecar.h"
#include "sample_source.h"

namespace {

// Returns the title, which the value is, or the error.
std::string titleFrom(const std::string& value) {
    return shownSample("return {[\"doc_props\"] = {[\"title\"] = " + value +
                       "}, [\"annotations\"] = {{[\"page\"] = 1}}}");
}

std::string annotation(const std::string& members) {
    return "{[\"annotations\"] = {{[\"drawer\"] = \"invert\", " + members + "}}}";
}

TEST(Lua, TextIsDecoded) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"("\195\1569A\t\\\"'b\
c")",
         "\u00dc9A\t\\\"'b\nc"},
        {"\"a\\\r\nb\"", "a\nb"},
        {"-- x\n --[[ \"y\"\n \"a\" -- z\n", "a"},
        {"\"b\", [\"title\"] = \"a\", [\"d\"] = true, [\"e\"] = false", "a"},
    };
    expectEach(cases, [](const std::string& value) {
        const std::string shown = titleFrom(value);
        return shown.substr(0, shown.find(" by "));
    });
}

TEST(Lua, NumberIsRead) {
    const ScratchDirectory scratch;
    const Case cases[] = {{"12", "12"}, {"-0.5", "-0.5"}, {"1e2", "100"}, {"1e999", ""},
                          {"-inf", ""}, {"\"12\"", ""},   {"{}", ""}};
    expectEach(cases, [](const std::string& number) {
        const std::string shown =
            shownPlaces(annotation("[\"pos0\"] = \"-\", [\"pageno\"] = " + number));
        return shown.substr(1, shown.find('|', 1) - 1);
    });
}

TEST(Lua, FaultIsNamedWithItsPlace) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {"os.exit()", "38: expected a text, a number, true, false or a table."},
        {"1 + 1", "40: expected a comma or the end of the table."},
        {"\"a\nb\"", "38: the text has no end."},
        {"\"\\q\"", "40: unknown escape."},
        {"\"\\256\"", "40: unknown escape."},
        {"{[{}] = 1}", "40: expected a text, a number, true, false or a table."},
        {"\"a\"}} os", "44: expected the end of the file."},
    };
    expectEach(cases, [](const std::string& value) {
        const std::string error = titleFrom(value);
        return error.substr(error.find("column ") + 7);
    });
    const std::string deep(1000, '{');
    EXPECT_EQ(
        shownSample("\n{[\"annotations\"] =" + deep),
        "Cannot read sample as a table of Lua: line 2, column 1019: nested too deep.");
}

TEST(Sidecar, PlaceIsThatOfEntry) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"(["pos0"] = "/body/DocFragment[18]/body/p[135]/text().158", ["pageno"] = 346)",
         "|346|||o.0000000001.0000000018.0000000001.0000000135.0000000001.0000000158\n"},
        {R"(["pos0"] = "/body/p[135]/text()[2].3", ["chapter"] = "I")",
         "|||I|o.0000000001.0000000135.0000000002.0000000003\n"},
        {R"(["pos0"] = {["x"] = 77.5, ["y"] = 340.2, ["page"] = 12}, ["page"] = 12)",
         "|12|||o.0000000012.0000000340.0000000077\n"},
        {R"(["pos0"] = {["x"] = 1e308, ["y"] = -1}, ["page"] = 2)",
         "|2|||o.0000000002.0000000001.9999999999\n"},
        {R"(["page"] = 2)", "|2|||o.0000000002\n"},
        {R"(["pos0"] = "/body/h2/text().5")",
         "||||o.0000000001.0000000001.0000000001.0000000005\n"},
    };
    expectEach(cases,
               [](const std::string& members) { return shownPlaces(annotation(members)); });
}

TEST(Sidecar, EntriesBecomeNotes) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"({["annotations"] = {[10] = {["page"] = 1, ["note"] = "c"}, [9] = {["page"] = 1,
             ["note"] = "b"}, [1e308] = {["page"] = 1, ["note"] = "d"}, [-1] = {["page"] = 1,
             ["note"] = "x"}, [-1.0] = {["page"] = 1, ["note"] = "a"}}})",
         "a\nb\nc\nd\n"},
        {R"({["annotations"] = {}, ["bookmarks"] = {{["page"] = 1, ["text"] = "a @ 2023-05-19"}}})",
         "a @ 2023-05-19\n"},
        {R"({["highlight"] = {[4] = {[1] = "junk", [2] = {}}}})", ""},
        {R"({["highlight"] = {[1] = {{["pos0"] = "p", ["datetime"] = "1"}, {["pos0"] = "q",
             ["datetime"] = "1"}}}, ["bookmarks"] = {{["pos0"] = "q", ["datetime"] = "1",
             ["text"] = "b"}, {["pos0"] = "p", ["datetime"] = "1", ["text"] = "a"}}})",
         "a\nb\n"},
        {R"({["highlight"] = {[1] = {{["pos0"] = "p", ["datetime"] = "1"}}}, ["bookmarks"] =
             {{["pos0"] = "p", ["datetime"] = "2", ["text"] = "a"}, {["page"] = "p",
             ["text"] = "b"}}})",
         "a\nb\n"},
        {R"({["highlight"] = {[1] = {{["pos0"] = "p"}, {["pos0"] = "q"}}}, ["bookmarks"] =
             {{["page"] = "p", ["text"] = "a"}, {["page"] = "q", ["text"] =
             "Seite 1 q @ 2023-05-19 23:42:17"}}})",
         "\n\na\n"},
    };
    expectEach(cases, [](const std::string& content) {
        return shownNotes(content, [](const client::Note& note) { return note.comment; });
    });
}

TEST(Sidecar, NamesItsBook) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"Emma.sdr/metadata.epub.lua", "", "Emma by "},
        {"Mr. Weston.annotations.lua", "", "Mr. Weston by "},
        {"Mr. Weston.lua", R"(["doc_props"] = {["title"] = "E"},)", "E by "},
        {"a.lua",
         R"(["doc_props"] = {["title"] = ""}, ["stats"] = {["title"] = "E", ["authors"] = "A\nB\n"},)",
         "E by A; B"},
        {"b.lua", R"(["stats"] = {["authors"] = "N/A"},)", "b by "},
    };
    for (const auto& [file, members, book] : cases) {
        client::makeFolders("Emma.sdr");
        writeFile(file, "return {" + members + R"(["annotations"] = {{["page"] = 1}}})");
        const client::Book read = client::readSource(file).books.at(0).book;
        EXPECT_EQ(read.title + " by " + read.author, book) << file;
    }
}

TEST(Sidecar, IsToldFromOtherFiles) {
    for (const char* sidecar :
         {"\uFEFF-- x\n return {[\"annotations\"] = {", "{ -- y\n [\"highlight\"] ="}) {
        EXPECT_TRUE(client::isSidecar(sidecar)) << sidecar;
    }
    for (const char* other : {"{\"items\": [\"annotations\"]}", "return {}", "-- return {",
                              "{[\"a\"] = 1}", "[\"annotations\"]"}) {
        EXPECT_FALSE(client::isSidecar(other)) << other;
    }
}

}  // namespace
