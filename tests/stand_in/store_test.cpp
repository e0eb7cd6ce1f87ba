// The reader database: who may open it when, and what fails.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdint>
#include <ctime>
#include <limits>
#include <numeric>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "connection.h"
#include "import_result.h"
#include "records.h"
#include "utilities/reader_db_manager.h"

using veloran::utilities::Note;

namespace {

class Store : public testing::Test {
    const ScratchDirectory device_;
};

std::string failureOfReading() {
    try {
        return recordsOnDevice();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

}  // namespace

TEST_F(Store, TimesBeyondThoseOfTheClockAreItsLimits) {
    using Limits = std::numeric_limits<std::time_t>;
    using Stored = std::numeric_limits<std::int64_t>;
    merge({{"ab",
            "",
            "",
            {{"n", {{1, "", {}, Stored::max()}, {2, "", {}, Stored::min()}}}}}});
    const Note note = veloran::utilities::ReaderDbManager().getNote("1");
    EXPECT_EQ(note[Note::Tag{1}].timestamp, Limits::max());
    EXPECT_EQ(note[Note::Tag{2}].timestamp, Limits::min());
}

TEST_F(Store, IsCreatedOnceByManyThreads) {
    const std::vector<host::BookRecord> books = sampleBooks();
    for (int round = 0; round < 20; ++round) {
        const ScratchDirectory device;
        std::vector<int> merged(8);
        std::vector<std::thread> threads;
        for (int& result : merged) {
            threads.emplace_back([&] { result = merge(books); });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
        EXPECT_EQ(std::accumulate(merged.begin(), merged.end(), 0), 4);
    }
}

TEST_F(Store, FailuresAreReportedWithTheFileAndWhatIsWrong) {
    const std::string path = host::kReaderDatabasePath;
    EXPECT_THROW(merge({{"ab", "", "", {{"", {}}}}}), std::runtime_error);
    EXPECT_EQ(recordsOnDevice(), "");
    merge(sampleBooks());
    const std::string document = documentOf(exported());
    Engine engine;
    for (const char* file : {"missing", ".", ""}) {
        EXPECT_EQ(engine->books_import(file), host::kFileUnreadable) << file;
    }
    host::Connection(path, {1, ""}).query("DROP TABLE tags").run();
    EXPECT_EQ(failureOfReading(), path + ": no such table: tags");
    std::string payload;
    EXPECT_FALSE(engine->books_export(payload, {1}));
    EXPECT_EQ(imported(document), host::kDatabaseError);

    host::Connection(path, {1, ""}).query("PRAGMA user_version = 2").run();
    EXPECT_EQ(failureOfReading().find(path + ": written by a later version"), 0U);
    std::filesystem::remove_all("mnt");
    std::filesystem::create_directories(path);
    EXPECT_EQ(failureOfReading(), path + ": unable to open database file");
}

TEST_F(Store, DatabaseThatStaysBusyIsReportedAfterSeconds) {
    Engine engine;
    writeFile("export.html", documentOf(dumpOf("")));
    static int waited;  // microseconds; nobody sleeps in earnest
    waited = 0;
    sqlite3_vfs* system = sqlite3_vfs_find(nullptr);
    const auto sleep = std::exchange(system->xSleep, [](sqlite3_vfs*, int time) {
        waited += time;
        return time;
    });
    host::Connection(host::kReaderDatabasePath, {1, ""}).write([&] {
        EXPECT_EQ(engine->books_import("export.html"), host::kDatabaseError);
    });
    system->xSleep = sleep;
    EXPECT_GE(waited, 1000000);
    EXPECT_EQ(engine->books_import("export.html"), 0);
}
