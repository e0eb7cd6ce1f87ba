// The reader database: how records merge, who may open it when, and what fails.
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
#include "reader_records.h"
#include "utilities/reader_db_manager.h"

using veloran::utilities::Note;
using veloran::utilities::ReaderDbManager;

namespace {

class Store : public OnDevice {};

std::vector<host::BookRecord> bookWith(const std::vector<host::TagRecord>& tags,
                                       const std::string& title) {
    return {{"ab", title, "", {{"note", tags}}}};
}

std::string failureOfReading() {
    try {
        return recordsOnDevice();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

}  // namespace

TEST_F(Store, MergeKeepsTheNewerOfEachTagAndDeletesNothing) {
    const host::TagRecord first = {1, "old", "1", 10}, second = {2, "kept", {}, 10};
    using Tags = std::vector<host::TagRecord>;
    const std::pair<Tags, Tags> cases[] = {
        // what comes, and what is there afterwards
        {{{1, "new", {}, 11}}, {{1, "new", {}, 11}, second}},
        {{{1, "a tie", "2", 10}}, {first, second}},
        {{{1, "older", {}, 9}}, {first, second}},
        {{{3, "more", {}, 1}}, {first, second, {3, "more", {}, 1}}},
        {{{1, "b", {}, 12}, {1, "twice", {}, 11}}, {{1, "b", {}, 12}, second}},
        {{}, {first, second}},
    };
    const std::string before = show(bookWith({first, second}, "title"));
    for (const auto& [incoming, outcome] : cases) {
        const ScratchDirectory device;
        const std::string after = show(bookWith(outcome, "title"));
        EXPECT_EQ(merge(bookWith({first, second}, "title")), 1);
        EXPECT_EQ(merge(bookWith(incoming, "other title")), after == before ? 0 : 1);
        EXPECT_EQ(recordsOnDevice(), after);
    }
}

TEST_F(Store, TimesBeyondThoseOfTheClockAreItsLimits) {
    using Limits = std::numeric_limits<std::time_t>;
    using Stored = std::numeric_limits<std::int64_t>;
    merge(bookWith({{1, "", {}, Stored::max()}, {2, "", {}, Stored::min()}}, ""));
    const Note note = ReaderDbManager().getNote("1");
    EXPECT_EQ(note[Note::Tag{1}].timestamp, Limits::max());
    EXPECT_EQ(note[Note::Tag{2}].timestamp, Limits::min());
}

TEST_F(Store, MergeThatFailsHalfwayLeavesNoTrace) {
    host::ReaderStore store(host::kReaderDatabasePath);
    std::vector<host::BookRecord> books = sampleBooks();
    books.back().notes.push_back({"", {}});
    EXPECT_THROW(store.merge(books), std::runtime_error);
    EXPECT_EQ(recordsOnDevice(), "");
    EXPECT_EQ(store.merge(sampleBooks()), 4) << "the connection is still of use";
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
    merge(sampleBooks());
    const std::string document = documentOf(exported());
    Engine engine;
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
