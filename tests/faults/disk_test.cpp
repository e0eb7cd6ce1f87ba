// An import that is killed, or finds the disk full, amid each of SQLite's changes to files.
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "dump/import_result.h"
#include "incoming_notes.h"
#include "store/connection.h"

namespace {

int changesLeft = 0;  // up to the one that is interrupted

ssize_t writeHalfAndDie(int file, const void* bytes, size_t size, off64_t offset) {
    if (--changesLeft == 0) {
        pwrite64(file, bytes, size / 2, offset);
        kill(getpid(), SIGKILL);
    }
    return pwrite64(file, bytes, size, offset);
}

int dieBeforeUnlink(const char* path) {
    return --changesLeft == 0 ? kill(getpid(), SIGKILL) : unlink(path);
}

ssize_t writeWhileThereIsRoom(int file, const void* bytes, size_t size, off64_t offset) {
    if (--changesLeft > 0) {
        return pwrite64(file, bytes, size, offset);
    }
    const ssize_t written = changesLeft == 0 ? pwrite64(file, bytes, size / 2, offset) : 0;
    errno = ENOSPC;
    return written > 0 ? written : -1;
}

template <class Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    const auto replacement = reinterpret_cast<sqlite3_syscall_ptr>(function);
    EXPECT_EQ(system->xSetSystemCall(system, name, replacement), SQLITE_OK);
}

class InterruptedImport : public IncomingNotes {
protected:
    InterruptedImport() { prepare(16, 6000); }

    static int importDocument() { return CExporter(kBook, "Notes").importFile(kDocument); }

    // Imports in a process that dies in its `nth` change. Whether it did.
    static bool killsAmid(int nth) {
        const pid_t child = fork();
        if (child == 0) {
            changesLeft = nth;
            replaceCall("pwrite64", writeHalfAndDie);
            replaceCall("unlink", dieBeforeUnlink);
            importDocument();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(status == 0 || status == SIGKILL) << status;
        return status != 0;
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
};

}  // namespace

TEST_F(InterruptedImport, KillLeavesEveryRecordOrNone) {
    int nth = 1;
    int whole = 0;
    for (; killsAmid(nth); ++nth) {
        whole += isImported() ? 1 : 0;
        EXPECT_GE(importDocument(), 0) << "the next import goes as ever";
        EXPECT_TRUE(isImported());
        restore();
    }
    EXPECT_GT(nth, 50);
    EXPECT_TRUE(0 < whole && whole < nth - 1) << whole;
}

TEST_F(InterruptedImport, FullDiskChangesNothingAndTheNextImportSucceeds) {
    const CExporter exporter(kBook, "Notes");
    int refused = 0;
    for (int nth = 1, result = -1; result < 0; ++nth) {
        changesLeft = nth;
        replaceCall("pwrite64", writeWhileThereIsRoom);
        result = exporter.importFile(kDocument);
        replaceCall<void()>("pwrite64", nullptr);
        EXPECT_TRUE(result == host::kDatabaseError || result == 16) << result;
        EXPECT_EQ(isImported(), result >= 0) << nth;
        refused += result < 0 ? 1 : 0;
    }
    EXPECT_GT(refused, 50);
}
