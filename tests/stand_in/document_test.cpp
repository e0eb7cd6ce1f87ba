// Documents around the dump: the careless, which import, the damaged, which import whole or
// not at all, and the hostile, which cost nothing.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "dump_reader.h"
#include "import_result.h"
#include "reader_records.h"
#include "utilities/serialization_utils.h"

namespace {

class Document : public OnDevice {
protected:
    const std::string payload_ = dumpOf(R"({"fast_hash":"ab","notes":[{"uuid":"n"}]})");
    const std::string base64_ = veloran::utilities::SerializationUtils::ToBase64(payload_);
};

std::string scriptOf(const std::string& content) {
    return "<script type=\"application/x-veloran-dbdump\">" + content + "</script>";
}

std::string repeated(int times, const std::string& text) {
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += text;
    }
    return all;
}

}  // namespace

TEST_F(Document, ImportsWhateverSurroundsTheDump) {
    const std::string heads[] = {
        "<title>a \x01\x1f b</title>",
        "<title>\xff\xfe \xc3( \xed\xa0\x80</title>",
        "<title>&nbsp; &; & &#0; &#xffffffff;</title>",
        "<meta charset=UTF-8><br><p class=a b>unclosed <i",
        "<style><!--/*--><![CDATA[/*><!--*/\n a > b ]]> & < c\n/*]]>*/--></style>",
        "<style>" + repeated(100000, "\xe4\xb8\xad\xe2\x80\xa6 ") + "</style>",
        "<style>x" + repeated(100000, "\xe4\xb8\xad\xf0\x9f\x93\x96 ") + "</style>",
        "<script>1 &lt; 2</script><script type=\"text/plain\">" + base64_ + "</script>",
        "<script src=\"x\" class='y' /><x:script/>",
        "<img src=\"data:image/jpeg;base64," + std::string(12000000, 'A') + "\"/>",
        repeated(5000, "<div>"),
    };
    for (const std::string& head : heads) {
        const ScratchDirectory device;
        EXPECT_EQ(imported(documentOf(payload_, head)), 1) << head.substr(0, 60);
    }
}

TEST_F(Document, FirstDumpCountsAndWhatFollowsItIsNotRead) {
    const std::string script = scriptOf(base64_);
    EXPECT_EQ(imported("<html>" + script + scriptOf("!") + "</html>"), 1);
    EXPECT_EQ(imported("<html>" + scriptOf("!") + script + "</html>"), host::kDumpDamaged);
}

TEST_F(Document, WithoutADumpElementHoldsNoDump) {
    const std::string script = scriptOf(base64_);
    std::string attributes;
    for (int number = 0; number < 300000; ++number) {
        attributes += " a" + std::to_string(number) + "=''";
    }
    const std::string documents[] = {
        "",
        "text",
        "<html><SCRIPT type=\"application/x-veloran-dbdump\"/></html>",
        "<html><x type=\"application/x-veloran-dbdump\">" + base64_ + "</x></html>",
        "<html><!--" + script + "--></html>",
        "<html><![CDATA[" + script + "]]></html>",
        "<html a='" + script + "'></html>",
        "<html" + attributes + ">" + script + "</html>",  // minutes, if all were compared
    };
    for (const std::string& document : documents) {
        EXPECT_EQ(imported(document), host::kNoDump) << document.substr(0, 100);
    }
}

TEST_F(Document, EntitiesAreNeitherFetchedNorExpanded) {
    writeFile("secret", base64_);
    std::string entities = "<!ENTITY e0 \"AAA\">";  // e9 would be a billion times as long
    for (int level = 1; level < 10; ++level) {
        const std::string smaller = "&e" + std::to_string(level - 1) + ";";
        entities +=
            "<!ENTITY e" + std::to_string(level) + " \"" + repeated(10, smaller) + "\">";
    }
    const std::string doctype = "<!DOCTYPE html [" + entities + "<!ENTITY inner \"" +
                                base64_ + "\"><!ENTITY outer SYSTEM \"secret\">" +
                                "<!ENTITY % p \"<!ENTITY q 'AAA'>\"> %p;]>";
    for (const char* around : {"<html><p>&e9;&e9;</p>", "<html a=\"&e9;\" b='&e9;'>",
                               "<html>&p;&q;<script type=\"&e9;\"/>"}) {
        const ScratchDirectory device;
        EXPECT_EQ(imported(doctype + around + scriptOf(base64_) + "</html>"), 1) << around;
    }
    for (const char* entity : {"&inner;", "&outer;", "&e9;"}) {
        EXPECT_EQ(imported(doctype + "<html>" + scriptOf(entity) + "</html>"),
                  host::kDumpDamaged)
            << entity;
    }
}

TEST_F(Document, DumpHoldsTextAlone) {
    for (const char* between : {"<b/>", "<b>", "&amp;", "\xc2\xa0"}) {
        const std::string script =
            scriptOf(base64_.substr(0, 20) + between + base64_.substr(20));
        EXPECT_EQ(imported("<html>" + script + "</html>"), host::kDumpDamaged) << between;
    }
}

TEST_F(Document, DamagedAnywhereIsReadWholeAndRightOrLeavesTheDatabaseAlone) {
    const std::vector<host::BookRecord> books = {
        {"ab", "T", "", {{"n", {{1, "n", {}, 7}, {101, "", R"({"anchor":"x"})", 8}}}}}};
    merge(books);
    const std::string payload = exported(), before = databaseBytes();
    const std::string document = documentOf(payload, "<title>t &amp; t</title>");
    std::vector<std::string> damaged;
    for (std::size_t at = 0; at < document.size(); ++at) {
        damaged.push_back(document.substr(0, at));
        for (const char replacement : {'\0', ' ', '<', '&', '=', 'A', '\xff'}) {
            damaged.push_back(document);
            damaged.back()[at] = replacement;
        }
    }
    for (std::size_t at = 0; at < payload.size(); ++at) {
        damaged.push_back(documentOf(payload.substr(0, at)));
        for (int bit = 0; bit < 8; ++bit) {
            std::string altered = payload;
            altered[at] = static_cast<char>(altered[at] ^ (1 << bit));
            damaged.push_back(documentOf(altered));
        }
    }
    Engine engine;
    std::size_t refused = 0;
    for (const std::string& text : damaged) {
        writeFile("export.html", text);
        try {
            EXPECT_EQ(show(host::readDump("export.html")), show(books)) << text;
        } catch (const host::DumpError& error) {
            EXPECT_EQ(engine->books_import("export.html"), error.result) << text;
            EXPECT_TRUE(databaseBytes() == before) << text;
            ++refused;
        }
    }
    EXPECT_TRUE(0 < refused && refused < damaged.size()) << refused;
}
