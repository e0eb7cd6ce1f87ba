#include <stdexcept>

#include "c_exporter.h"
#include "device_test.h"
#include "notes_export/notes_exporter.h"

namespace {

// Runs with std::runtime_error and with an exception outside std::exception.
class PlatformExceptions : public DeviceTest, public testing::WithParamInterface<bool> {
protected:
    // Calls `call`, in which the `n`th platform call throws; returns whether the exception
    // was passed on.
    template <class Call>
    bool fails(int n, Call call) {
        made_ = 0;
        script().onCall = [&](const std::string&) {
            if (++made_ == n) {
                GetParam() ? throw std::runtime_error("") : throw 42;
            }
        };
        bool failed = true;
        try {
            call();
            failed = false;
        } catch (const std::runtime_error&) {
            EXPECT_TRUE(GetParam());
        } catch (int) {
            EXPECT_FALSE(GetParam());
        }
        script().onCall = nullptr;
        EXPECT_LE(made_, n) << "no calls after the failure";
        return failed;
    }

    // Calls `call` with the first, the second, … platform call throwing, until none throws.
    // After each, calls `check` with true if one threw.
    template <class Call, class Check>
    void failEveryCall(Call call, Check check) {
        bool failed = true;
        for (int n = 1; failed; n++) {
            SCOPED_TRACE("call " + std::to_string(n));
            script().calls.clear();
            failed = fails(n, call);
            EXPECT_EQ(failed, made_ == n);
            check(failed);
            std::filesystem::remove_all("Notes");
        }
    }

    int made_ = 0;  // platform calls
};

// Orders the sample book's notes by page. Each comparison counts as a platform call.
bool recordedOrder(void* /*userData*/, long long a, long long b) {
    scripted::recordCall("before");
    return a % 12 < b % 12;
}

// Loads the sample book with its title in the reader database, so that all lookups are
// called.
void loadBookOfReader() {
    loadSampleBook();
    veloran::utilities::Book book;
    std::swap(book.title, script().booksOfLibrary[kLibraryId].title);
    script().readerBooks[kBook] = {book};
}

TEST_P(PlatformExceptions, ExportThrowsAndLeavesPrefix) {
    loadBookOfReader();
    const std::string whole = golden("full_export.html");
    const CExporter exporter(kBook, "Notes");
    const auto exportNotes = [&] { EXPECT_EQ(exporter.exportNotes(recordedOrder), 0); };
    const int open = script().openHandles;
    std::string earlier;
    failEveryCall(exportNotes, [&](bool failed) {
        const std::string text = withoutDates(readFile(kFile));
        const bool begun = joined(script().calls).find("ImportExportDBV2") != text.npos;
        EXPECT_EQ(text.empty(), !begun) << "titles are looked up before any writing";
        EXPECT_TRUE(startsWith(whole, text) && startsWith(text, earlier)) << text;
        EXPECT_EQ(script().openHandles, open);
        earlier = text;

        std::filesystem::remove_all("Notes");
        exportNotes();
        EXPECT_EQ(withoutDates(readFile(kFile)), whole) << "the next export";
        EXPECT_TRUE(failed || text == whole);
    });
}

TEST_P(PlatformExceptions, NameQueryThrowsAndExporterStaysUsable) {
    loadBookOfReader();
    const CExporter exporter(kBook, "Notes");
    const auto query = [&] { EXPECT_EQ(exporter.fileName(), kFile); };
    const int open = script().openHandles;
    failEveryCall(query, [&](bool) {
        EXPECT_EQ(script().openHandles, open);
        query();
    });
}

TEST_P(PlatformExceptions, CreationThrowsAndLeavesNothingOpen) {
    failEveryCall([] { CExporter(kBook, "Notes"); },
                  [](bool) { EXPECT_EQ(script().openHandles, 0); });
}

TEST_P(PlatformExceptions, ImportThrowsInCppAndReturnsMinusOneInC) {
    writeFile("in.html", "");
    script().hashText = "abc123";
    script().importResult = 5;
    veloran::NotesExporter exporter;
    const CExporter cExporter(kBook, "Notes");
    for (int n = 1; n <= 5; n++) {
        SCOPED_TRACE("call " + std::to_string(n));
        EXPECT_TRUE(fails(n, [&] { exporter.import_from_file("in.html"); }));
        int result = 0;
        EXPECT_NE(fails(n, [&] { result = cExporter.importFile("in.html"); }), GetParam());
        EXPECT_EQ(result, GetParam() ? -1 : 0);
        EXPECT_EQ(cExporter.importFile("in.html"), 5);
    }
}

INSTANTIATE_TEST_SUITE_P(Kind, PlatformExceptions, testing::Bool(), [](const auto& test) {
    return test.param ? "RuntimeError" : "Int";
});

}  // namespace
