// Every allocation of an export and of an import fails in turn.
#include <new>

#include "failing_allocations.h"
#include "incoming_notes.h"
#include "notes_export/notes_exporter.h"

namespace {

class Memory : public IncomingNotes, public testing::WithParamInterface<Shortage> {
protected:
    Memory() { prepare(4, 10); }

    // Runs `call` with the first, the second, … allocation failing, until none does, and
    // `check` with whether it went through.
    template <class Call, class Check>
    void failEveryAllocation(Call call, Check check) {
        call();  // what stays for the life of the process is there from now on
        long nth = 0;
        for (bool failed = true; failed;) {
            ++nth;
            restore();
            const long live = liveAllocations();
            bool arrived = false;
            failAllocation(nth, GetParam());
            try {
                call();
            } catch (const std::bad_alloc&) {
                arrived = true;
            }
            failed = endShortage();
            EXPECT_EQ(arrived, failed) << "allocation " << nth;
            EXPECT_EQ(liveAllocations(), live) << "allocation " << nth;
            check(arrived);
        }
        EXPECT_GT(nth, 50);
    }
};

}  // namespace

TEST_P(Memory, RunsOutDuringAnExport) {
    const std::string readerDatabase = databaseBytes();
    const std::string libraryDatabase = readFile(host::kLibraryDatabasePath);
    const std::string name = veloran::NotesExporter().getExportedFileName(kBook);
    std::size_t written = 0;
    const auto exportNotes = [] {
        EXPECT_EQ(veloran::NotesExporter().export_bookmarks_to_html(kBook, {}, nullptr), 0);
    };
    failEveryAllocation(exportNotes, [&](bool failed) {
        const std::string document = readFile(name);
        EXPECT_GE(document.size(), written);
        EXPECT_TRUE(failed || document.find("</html>") != document.npos);
        written = document.size();
        EXPECT_TRUE(databaseBytes() == readerDatabase);
        EXPECT_EQ(readFile(host::kLibraryDatabasePath) == libraryDatabase, failed)
            << "only a whole document is marked";
    });
}

TEST_P(Memory, RunsOutDuringAnImport) {
    bool merged = false;
    const auto importNotes = [] { veloran::NotesExporter().import_from_file(kDocument); };
    failEveryAllocation(importNotes, [&](bool failed) {
        const std::string records = recordsOnDevice();
        // Once the notes are in, failures only keep the file from being marked.
        merged = merged || records == after_;
        EXPECT_EQ(records, merged ? after_ : before_);
        EXPECT_TRUE(failed || merged);
    });
}

INSTANTIATE_TEST_SUITE_P(FailsOnceOrFromThenOn, Memory,
                         testing::Values(Shortage::kOnce, Shortage::kFromThenOn));
