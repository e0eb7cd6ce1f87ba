// Documents around the dump, such as the corpus of the fuzz target has no room for.
#include <gtest/gtest.h>

#include "dump_reader.h"
#include "import_result.h"
#include "records.h"
#include "utilities/serialization_utils.h"

namespace {

class Document : public testing::Test {
    const ScratchDirectory device_;
};

}  // namespace

TEST_F(Document, EntitiesAreNotFetched) {
    using veloran::utilities::SerializationUtils;
    writeFile("dump", SerializationUtils::ToBase64(dumpOf(R"({"fast_hash":"ab"})")));
    const std::string entity = "<!DOCTYPE html [<!ENTITY dump SYSTEM \"dump\">]>";
    const std::string start = "<html><script type=\"application/x-veloran-dbdump\">";
    EXPECT_EQ(imported(entity + start + readFile("dump") + "</script></html>"), 0);
    EXPECT_EQ(imported(entity + start + "&dump;</script></html>"), host::kDumpDamaged);
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
        for (const char byte : {'\0', ' ', '<', '&', '=', 'A', '\xff'}) {
            damaged.push_back(std::string(document).replace(at, 1, 1, byte));
        }
    }
    for (std::size_t at = 0; at < payload.size(); ++at) {
        damaged.push_back(documentOf(payload.substr(0, at)));
        for (int bit = 1; bit < 256; bit *= 2) {
            const char byte = static_cast<char>(payload[at] ^ bit);
            damaged.push_back(documentOf(std::string(payload).replace(at, 1, 1, byte)));
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
