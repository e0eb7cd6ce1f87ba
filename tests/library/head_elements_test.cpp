#include "device_test.h"

namespace library_tests {
namespace {

using Dump = DeviceTest;
using StyleSheet = DeviceTest;

constexpr char kOpening[] = ">\n  <script type=\"application/x-veloran-dbdump\"";

// Writes the dump, expecting the result.
std::string dump(int result) {
    return written(
        [&](Writer& w) { EXPECT_EQ(Exporter().writeBinaryDump(w, kItem, {}), result); });
}

TEST_F(Dump, CutsItsBase64IntoLinesOf72) {
    const std::string line(72, 'A');
    const std::pair<std::size_t, std::string> cases[] = {
        {3, "AAAA"},
        {51, std::string(68, 'A')},
        {54, line},
        {57, line + "\nAAAA"},
        {108, line + "\n" + line},
        {111, line + "\n" + line + "\nAAAA"},
    };
    script().fastHashes[kItem] = "a\"&b";
    for (const auto& [size, lines] : cases) {
        script().payload = std::string(size, '\0');
        EXPECT_EQ(dump(0),
                  kOpening + (" book_hash=\"a&quot;&amp;b\">" + lines) + "</script>");
    }
}

TEST_F(Dump, IsLeftOutWhenTheEngineHasNoPayload) {
    EXPECT_EQ(dump(-1), "");
    script().payload = "of a failed export";
    script().exportSucceeds = false;
    EXPECT_EQ(dump(-1), "");
}

TEST_F(Dump, FetchesTheHashForAnyItemAfterTheTypeIsWritten) {
    script().payload = "p";
    script().onCall = [](const std::string& call) {
        call == "ReaderDbManager::getBookFastHashById(-2)" ? throw 42 : 0;
    };
    EXPECT_EQ(written([](Writer& w) {
                  Exporter exporter;
                  EXPECT_THROW(exporter.writeBinaryDump(w, -2, {}), int);
              }),
              kOpening);
    EXPECT_EQ(script().calls[2],
              "ImportExportDBV2::books_export(, {18446744073709551614})");
}

constexpr char kPath[] = NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css";

void expectElementWith(const std::string& sheet) {
    EXPECT_EQ(written([](Writer& w) { veloran::NotesExporterImpl::writeExportCss(w); }),
              ">\n  <style type=\"text/css\"><!--/*--><![CDATA[/*><!--*/\n" + sheet +
                  "\n/*]]>*/--></style>");
}

TEST_F(StyleSheet, IsCopiedWholeAndUnescapedWhateverItsSize) {
    for (const std::size_t size : {0U, 1U, 1023U, 1024U, 1025U, 2048U, 2500U}) {
        std::string sheet;
        while (sheet.size() < size) {
            sheet += "a > b { content: \"<&'\" }\r\n\xCE\xB1\xFF";
        }
        sheet.resize(size);
        writeFile(kPath, sheet);
        expectElementWith(sheet);
    }
}

TEST_F(StyleSheet, IsEmptyWhenThereIsNoneOrItCannotBeRead) {
    expectElementWith("");
    std::filesystem::create_directories(kPath);
    expectElementWith("");
}

}  // namespace
}  // namespace library_tests
