// An import whose writes are cut short, by a disk that is full or by the end of the
// process.
#include <sys/wait.h>
#include <unistd.h>

#include "connection.h"
#include "import_result.h"
#include "incoming_notes.h"
#include "interrupted_writes.h"

namespace {

class InterruptedImport : public IncomingNotes {
protected:
    InterruptedImport() {
        prepare(kNotes, 20000);
        interruptOperation(0, {});
        importDocument();
        operations_ = endInterruption();
        restore();
    }

    static int importDocument() { return CExporter(kBook, "Notes").importFile(kDocument); }

    // Half of the moments are spread over the import, the others are its last ones.
    int operation(int moment) const {
        const int half = kMoments / 2;
        return moment < half ? 1 + operations_ * moment / half
                             : operations_ - kMoments + moment + 1;
    }

    // Whether the database, which must be sound, holds all of the import rather than none.
    bool isImported() const {
        host::Connection database(host::kReaderDatabasePath, {1, ""});
        host::Query check = database.query("PRAGMA integrity_check");
        EXPECT_TRUE(check.next());
        EXPECT_EQ(check.bytes(0), "ok");
        const std::string records = recordsOnDevice();
        EXPECT_TRUE(records == before_ || records == after_);
        return records == after_;
    }

    static constexpr int kNotes = 30;
    static constexpr int kMoments = 100;
    int operations_ = 0;
};

}  // namespace

TEST_F(InterruptedImport, ByAKillIsWholeOrNotThere) {
    ASSERT_GT(operations_, kMoments);
    int whole = 0;
    for (int moment = 0; moment < kMoments; ++moment) {
        restore();
        const pid_t child = fork();
        if (child == 0) {
            interruptOperation(operation(moment), Interruption::kKill);
            importDocument();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << moment;
        whole += isImported() ? 1 : 0;
        EXPECT_GE(importDocument(), 0) << "the next import goes as ever";
        EXPECT_TRUE(isImported());
    }
    EXPECT_TRUE(0 < whole && whole < kMoments) << whole;
}

TEST_F(InterruptedImport, ByAFullDiskIsRefusedWholeAndGoesOnceThereIsRoom) {
    for (int moment = 0; moment < kMoments; ++moment) {
        restore();
        const CExporter exporter(kBook, "Notes");
        interruptOperation(operation(moment), Interruption::kDiskFull);
        const int result = exporter.importFile(kDocument);
        endInterruption();
        EXPECT_TRUE(result == host::kDatabaseError || result == kNotes) << result;
        EXPECT_EQ(isImported(), result == kNotes) << moment;
        EXPECT_GE(exporter.importFile(kDocument), 0);
        EXPECT_TRUE(isImported());
    }
}
