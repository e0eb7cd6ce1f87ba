#include <stdexcept>

#include "device_test.h"
#include "notes_export/notes_exporter.h"

namespace library_tests {
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
bool recordedOrder(long long a, long long b) {
    scripted::recordCall("before");
    return a % 12 < b % 12;
}

TEST_P(Exceptions, OfEveryCallOfAnExportReachTheCaller) {
    loadSampleBook();
    veloran::utilities::Book book;
    std::swap(book.title, script().libraryBooks[kLibraryId].title);
    script().readerBooks[kBook] = {book};
    const std::string whole = golden("full_export.html");
    const auto exportNotes = [] {
        std::filesystem::remove_all("Notes");
        veloran::NotesExporter exporter;
        exporter.setExportDir("Notes");
        exporter.export_bookmarks_to_html(kBook, {}, recordedOrder);
    };
    std::string text;
    Outcome outcome = GetParam();
    for (int n = 1; outcome == GetParam(); n++) {
        const std::string earlier = text;
        outcome = failing(n, exportNotes);
        text = withoutDate(readFile(kFile));
        EXPECT_TRUE(startsWith(whole, text) && startsWith(text, earlier)) << text;
        EXPECT_EQ(outcome == Outcome::Returned, made_ < n) << "call " << n;
        EXPECT_EQ(script().openHandles, 0);
    }
    EXPECT_EQ(text, whole);
}

TEST_P(Exceptions, OfEveryCallOfAnImportReachCppAndOfStandardKindBecomeMinusOneInC) {
    writeFile("in.html", "");
    script().hashText = "abc123";
    script().importResult = 5;
    veloran::NotesExporter exporter;
    for (int n = 1; n <= 5; n++) {
        EXPECT_EQ(failing(n, [&] { exporter.import_from_file("in.html"); }), GetParam());
        int result = 0;
        const Outcome outcome = failing(
            n, [&] { result = notes_exporter_import_from_file(&exporter, "in.html"); });
        const bool isCaught = GetParam() == Outcome::Threw;
        EXPECT_EQ(outcome, isCaught ? Outcome::Returned : GetParam());
        EXPECT_EQ(result, isCaught ? -1 : 0);
    }
    EXPECT_EQ(notes_exporter_import_from_file(&exporter, "in.html"), 5);
}

INSTANTIATE_TEST_SUITE_P(OfEachKind, Exceptions,
                         testing::Values(Outcome::Threw, Outcome::ThrewForeign));

}  // namespace
}  // namespace library_tests
