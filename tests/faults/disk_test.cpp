// An import that is killed, or that fills the disk, during each of SQLite's changes to
// files.
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "dump/import_result.h"
#include "incoming_notes.h"
#include "store/connection.h"

namespace {

int changesLeft = 0;  // until the one that is interrupted
bool kills = false;   // otherwise the disk is full

ssize_t writeHalf(int file, const void* bytes, size_t size, off64_t offset) {
    if (--changesLeft > 0) {
        return pwrite64(file, bytes, size, offset);
    }
    const ssize_t written = changesLeft == 0 ? pwrite64(file, bytes, size / 2, offset) : 0;
    if (kills) {
        kill(getpid(), SIGKILL);
    }
    errno = ENOSPC;
    return written > 0 ? written : -1;
}

int unlinkUnlessKilled(const char* path) {
    return kills && --changesLeft == 0 ? kill(getpid(), SIGKILL) : unlink(path);
}

template <class Function>
void replaceCall(const char* name, Function* function) {
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    const auto replacement = reinterpret_cast<sqlite3_syscall_ptr>(function);
    EXPECT_EQ(system->xSetSystemCall(system, name, replacement), SQLITE_OK);
}

void interruptChange(int nth) {
    changesLeft = nth;
    replaceCall("pwrite64", writeHalf);
    replaceCall("unlink", unlinkUnlessKilled);
}

class InterruptedImport : public IncomingNotes, public testing::WithParamInterface<bool> {
protected:
    InterruptedImport() {
        prepare(16, 6000);
        kills = GetParam();
    }

    // Returns whether the import ended because its `nth` change to a file failed.
    bool endsAtChange(int nth) { return kills ? diesAt(nth) : isRefusedAt(nth); }

    // Checks the database, and returns whether it has all of the import; otherwise it must
    // have none.
    bool isImported() const {
        host::Connection database(host::kReaderDatabasePath, {1, ""});
        host::Query check = database.query("PRAGMA integrity_check");
        EXPECT_TRUE(check.next());
        EXPECT_EQ(check.bytes(0), "ok");
        const std::string records = recordsOnDevice();
        EXPECT_TRUE(records == before_ || records == after_);
        return records == after_;
    }

    const CExporter exporter_{kBook, "Notes"};

private:
    static bool diesAt(int nth) {
        const pid_t child = fork();
        if (child == 0) {
            interruptChange(nth);
            CExporter(kBook, "Notes").importFile(kDocument);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_TRUE(status == 0 || status == SIGKILL) << status;
        return status != 0;
    }

    bool isRefusedAt(int nth) {
        interruptChange(nth);
        const int result = exporter_.importFile(kDocument);
        replaceCall<void()>("pwrite64", nullptr);
        replaceCall<void()>("unlink", nullptr);
        EXPECT_TRUE(result == host::kDatabaseError || result == 16) << result;
        return result < 0;
    }
};

}  // namespace

TEST_P(InterruptedImport, ChangesAllOrNothing) {
    int nth = 1, whole = 0;
    for (; endsAtChange(nth); ++nth) {
        SCOPED_TRACE("change " + std::to_string(nth));
        whole += isImported() ? 1 : 0;
        EXPECT_GE(exporter_.importFile(kDocument), 0) << "the next import";
        EXPECT_TRUE(isImported()) << "after the next import";
        restore();
    }
    EXPECT_GT(nth, 50);
    EXPECT_EQ(whole > 0, kills) << "only a killed import may be complete";
    EXPECT_LT(whole, nth - 1);
}

INSTANTIATE_TEST_SUITE_P(By, InterruptedImport, testing::Bool(),
                         [](const auto& test) { return test.param ? "Kill" : "FullDisk"; });
