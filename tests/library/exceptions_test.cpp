#include <functional>
#include <stdexcept>

#include "c_exporter.h"
#include "device_test.h"
#include "notes_export/notes_exporter.h"

namespace {

enum class Outcome { Returned, Threw, ThrewForeign };

class Exceptions : public DeviceTest, public testing::WithParamInterface<Outcome> {
protected:
    // Runs `call`, in which the `n`th platform call fails, and tells how it ended.
    template <class Call>
    Outcome failing(int n, Call call) {
        made_ = 0;
        script().onCall = [&](const std::string&) {
            if (++made_ == n) {
                GetParam() == Outcome::Threw ? throw std::runtime_error("") : throw 42;
            }
        };
        Outcome outcome = Outcome::Returned;
        try {
            call();
        } catch (const std::runtime_error&) {
            outcome = Outcome::Threw;
        } catch (int) {
            outcome = Outcome::ThrewForeign;
        }
        script().onCall = nullptr;
        EXPECT_LE(made_, n) << "calls went on";
        return outcome;
    }

    int made_ = 0;  // platform calls
};

// Orders the sample book's notes as their pages do. Each answer counts as a platform call.
bool recordedOrder(void* /*userData*/, long long a, long long b) {
    scripted::recordCall("before");
    return a % 12 < b % 12;
}

// Calls of the C interface that export, ask for a name, and create and free an exporter.
TEST_P(Exceptions, OfEveryCallReachTheCallerAndTheExporterServesOn) {
    loadSampleBook();
    veloran::utilities::Book book;
    std::swap(book.title, script().libraryBooks[kLibraryId].title);
    script().readerBooks[kBook] = {book};
    const std::string whole = golden("full_export.html");
    const CExporter exporter(kBook, "Notes");
    const int open = script().openHandles;
    const std::function<void()> calls[] = {
        [] { CExporter(kBook, "Notes"); },
        [&] { EXPECT_EQ(exporter.fileName(), kFile); },
        [&] { EXPECT_EQ(exporter.exportNotes(recordedOrder), 0); },
    };
    std::string text;
    for (const auto& call : calls) {
        Outcome outcome = GetParam();
        for (int n = 1; outcome == GetParam(); n++) {
            std::filesystem::remove_all("Notes");
            const std::string earlier = text;
            script().calls.clear();
            outcome = failing(n, call);
            text = withoutDates(readFile(kFile));
            const bool begun = joined(script().calls).find("ImportExportDBV2") != text.npos;
            EXPECT_EQ(text.empty(), !begun) << "titles are looked up before any writing";
            EXPECT_TRUE(startsWith(whole, text) && startsWith(text, earlier)) << text;
            EXPECT_EQ(outcome == Outcome::Returned, made_ < n) << "call " << n;
            EXPECT_EQ(script().openHandles, open);

            std::filesystem::remove_all("Notes");
            EXPECT_EQ(exporter.exportNotes(recordedOrder), 0);
            EXPECT_EQ(withoutDates(readFile(kFile)), whole) << "after call " << n;
        }
    }
    EXPECT_EQ(text, whole);
}

TEST_P(Exceptions, OfEveryCallOfAnImportReachCppAndOfStandardKindBecomeMinusOneInC) {
    writeFile("in.html", "");
    script().hashText = "abc123";
    script().importResult = 5;
    veloran::NotesExporter exporter;
    const CExporter cExporter(kBook, "Notes");
    for (int n = 1; n <= 5; n++) {
        EXPECT_EQ(failing(n, [&] { exporter.import_from_file("in.html"); }), GetParam());
        int result = 0;
        const Outcome outcome =
            failing(n, [&] { result = cExporter.importFile("in.html"); });
        const bool isCaught = GetParam() == Outcome::Threw;
        EXPECT_EQ(outcome, isCaught ? Outcome::Returned : GetParam());
        EXPECT_EQ(result, isCaught ? -1 : 0);
        EXPECT_EQ(cExporter.importFile("in.html"), 5);
    }
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, Exceptions,
                         testing::Values(Outcome::Threw, Outcome::ThrewForeign));

}  // namespace
