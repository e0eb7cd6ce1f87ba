// The results of both interfaces, and their calls of the platform.
#include <algorithm>

#include "c_exporter.h"
#include "device_test.h"
#include "notes_export/notes_exporter.h"

namespace {

using CallOrder = DeviceTest;

TEST_F(CallOrder, MatchesGoldenFile) {
    loadSampleBook();
    {
        veloran::NotesExporter exporter;
        exporter.setExportDir("Notes");
        exporter.export_bookmarks_to_html(kBook, {}, nullptr);
        exporter.import_from_file(kFile);
    }
    // Repeated calls of one getter are not part of the contract.
    Calls& calls = script().calls;
    const auto repeats = [](const auto& a, const auto& b) {
        return a == b && startsWith(a, "Note(");
    };
    calls.erase(std::unique(calls.begin(), calls.end(), repeats), calls.end());
    EXPECT_EQ(joined(calls), golden("calls.txt"));
}

TEST_F(CallOrder, UnknownBookEndsExportAfterLookup) {
    Exporter exporter;
    EXPECT_EQ(exporter.exportAll(), -1);
    EXPECT_EQ(script().calls, Calls{"ReaderDbManager::getItemId(626f6f6b)"});
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(CallOrder, FailedImportEndsAfterEngine) {
    for (const int result : {0, 5, -5}) {
        SCOPED_TRACE(result);
        Exporter exporter;
        script().importResult = result;
        EXPECT_EQ(exporter.import_from_file("in.html"), result);
        EXPECT_EQ(startsWith(script().calls.back(), "FastBookHash"), result >= 0);
    }
}

struct CInterface : DeviceTest {
    CInterface() { loadSampleBook(); }
};

TEST_F(CInterface, NullArrayExportsEveryNote) {
    const CExporter exporter(kBook, "./x//y/");
    const CExporter other(kBook, "other");
    EXPECT_EQ(exporter.fileName(), "./x//y//Dune  Sons.html");
    EXPECT_FALSE(std::filesystem::exists("x")) << "a query creates no file";
    EXPECT_EQ(exporter.exportNotes(), 0);
    EXPECT_EQ(withoutDates(readFile("x/y/Dune  Sons.html")), golden("full_export.html"));
    EXPECT_EQ(exporter.fileName(), "./x//y//Dune  Sons (1).html");
    EXPECT_EQ(other.fileName(), "other/Dune  Sons.html");
}

TEST_F(CInterface, RepeatedIdentifiersAreExportedOnce) {
    std::vector<std::pair<long long, long long>> seen;
    const auto before = [](void* userData, long long first, long long second) {
        static_cast<decltype(seen)*>(userData)->emplace_back(first, second);
        return first > second;
    };
    CExporter(kBook, "Notes").exportNotes(before, &seen, {13, 11, 13, 11, 12});
    EXPECT_GE(seen.size(), 2U);
    EXPECT_NE(joined(script().calls).find("set_export_bookmark_ids({11, 12, 13})"),
              std::string::npos);
    EXPECT_EQ(renderedIds(), (Ids{13, 12, 11}));
}

TEST_F(CInterface, FreeingNullDoesNothing) {
    free_notes_exporter(nullptr);
    EXPECT_TRUE(script().calls.empty()) << joined(script().calls);
}

TEST_F(CInterface, NullImportPathSkipsEngine) {
    const CExporter exporter(kBook, "Notes");
    script().calls.clear();
    EXPECT_EQ(exporter.importFile(nullptr), -1);
    EXPECT_TRUE(script().calls.empty()) << joined(script().calls);
}

TEST_F(CInterface, FileNameIsCutAtBufferSize) {
    const CExporter exporter(kBook, "Notes");
    const std::size_t length = kFile.size();
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, length, length + 1, length + 9}) {
        SCOPED_TRACE(size);
        std::string buffer(length + 20, '~');
        notes_exporter_get_exported_file_name(exporter.handle(), buffer.data(), size,
                                              kBook.c_str());
        std::string expected(length + 20, '~');
        const std::string copied = (kFile + '\0').substr(0, size);
        EXPECT_EQ(buffer, expected.replace(0, copied.size(), copied));
    }
}

}  // namespace
