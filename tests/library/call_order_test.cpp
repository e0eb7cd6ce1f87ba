#include <algorithm>

#include "device_test.h"
#include "notes_export/notes_exporter.h"

namespace {

using CallOrder = DeviceTest;

TEST_F(CallOrder, OfAnExportAndAnImport) {
    loadSampleBook();
    {
        veloran::NotesExporter exporter;
        exporter.setExportDir("Notes");
        exporter.export_bookmarks_to_html(kBook, {}, nullptr);
        exporter.import_from_file(kFile);
    }
    // How often in a row a note is asked the same thing is nobody's business.
    Calls& calls = script().calls;
    const auto repeats = [](const auto& a, const auto& b) {
        return a == b && startsWith(a, "Note(");
    };
    calls.erase(std::unique(calls.begin(), calls.end(), repeats), calls.end());
    EXPECT_EQ(joined(calls), golden("calls.txt"));
}

TEST_F(CallOrder, OfAnUnknownBookEndsWithTheFirstLookup) {
    Exporter exporter;
    EXPECT_EQ(exporter.exportAll(), -1);
    EXPECT_EQ(script().calls, Calls{"ReaderDbManager::getItemId(626f6f6b)"});
    EXPECT_TRUE(std::filesystem::is_empty("."));
}

TEST_F(CallOrder, OfAFailedImportEndsWithTheEngine) {
    for (const int result : {0, 5, -5}) {
        Exporter exporter;
        script().importResult = result;
        EXPECT_EQ(exporter.import_from_file("in.html"), result);
        EXPECT_EQ(script().calls.size(), result < 0 ? 2U : 3U) << joined(script().calls);
    }
}

}  // namespace
