// Exports and imports in which each allocation fails once.
#include <new>

#include "dump/import_result.h"
#include "failing_allocations.h"
#include "incoming_notes.h"
#include "notes_export/notes_exporter.h"

namespace {

class OutOfMemory : public IncomingNotes, public testing::WithParamInterface<Shortage> {
protected:
    OutOfMemory() { prepare(4, 10); }

    // Calls `call` with the first, the second, … allocation failing, until none fails.
    // After each, calls `check` with true if no exception was thrown.
    template <class Call, class Check>
    void failEveryAllocation(Call call, Check check) {
        call();  // allocates what the process keeps
        long nth = 0;
        for (Failed failed = Failed::kOther; failed != Failed::kNothing;) {
            restore();
            bool arrived = false;
            failAllocation(++nth, GetParam());
            try {
                call();
            } catch (const std::bad_alloc&) {
                arrived = true;
            }
            failed = endShortage();
            // The libraries tolerate some failed allocations.
            EXPECT_TRUE(arrived ? failed != Failed::kNothing : failed != Failed::kNew)
                << "allocation " << nth;
            check(!arrived);
        }
        EXPECT_GT(nth, 500);
    }
};

}  // namespace

TEST_P(OutOfMemory, FailedExportLeavesUnmarkedPrefix) {
    const std::string readerDatabase = databaseBytes();
    const std::string libraryDatabase = readFile(host::kLibraryDatabasePath);
    const std::string name = veloran::NotesExporter().getExportedFileName(kBook);
    const auto exportNotes = [] {
        EXPECT_EQ(veloran::NotesExporter().export_bookmarks_to_html(kBook, {}, nullptr), 0);
    };
    exportNotes();
    const std::string whole = withoutDates(readFile(name));
    failEveryAllocation(exportNotes, [&](bool wentThrough) {
        const std::string document = withoutDates(readFile(name));
        EXPECT_TRUE(document == (wentThrough ? whole : whole.substr(0, document.size())));
        EXPECT_TRUE(databaseBytes() == readerDatabase);
        EXPECT_EQ(readFile(host::kLibraryDatabasePath) != libraryDatabase, wentThrough)
            << "only a complete document is marked";
    });
}

TEST_P(OutOfMemory, ImportTakesEveryRecordOrNone) {
    int result = 0;
    const auto importNotes = [&result] {
        result = veloran::NotesExporter().import_from_file(kDocument);
    };
    failEveryAllocation(importNotes, [&](bool wentThrough) {
        const std::string records = recordsOnDevice();
        const bool imported = records == after_;
        EXPECT_TRUE(imported || records == before_);
        // After the notes are stored, a failure only prevents the mark of the file.
        EXPECT_TRUE(!wentThrough || result == (imported ? 4 : host::kDatabaseError))
            << result;
    });
}

INSTANTIATE_TEST_SUITE_P(Shortage, OutOfMemory,
                         testing::Values(Shortage::kOnce, Shortage::kFromThenOn),
                         [](const auto& test) {
                             return test.param == Shortage::kOnce ? "Once" : "FromThenOn";
                         });
