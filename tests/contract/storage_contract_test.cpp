// The part of the seam's contract that only platforms with databases implement.
#include <algorithm>
#include <set>
#include <thread>

#include "contract_test.h"
#include "db/db_manager.h"
#include "engine.h"
#include "fast_book_hash.h"
#include "scratch_files.h"

using veloran::db::DbManager;

namespace {

std::string hashOf(const std::string& path, int size = 256) {
    std::string buffer(256, '#');
    const int length = FastBookHash(path.c_str(), buffer.data(), size);
    const auto end = static_cast<std::size_t>(std::max(size, 0));
    EXPECT_LE(length, std::max(size, 0));
    EXPECT_EQ(buffer.find_first_not_of('#', end), buffer.npos) << "wrote past the buffer";
    return buffer.substr(0, static_cast<std::size_t>(std::max(length, 0)));
}

// Returns the texts of the book's notes on an empty device after an import of the payload.
std::set<std::string> textsAfterImporting(const std::string& payload) {
    const ScratchDirectory elsewhere;
    EXPECT_GE(imported(documentOf(payload)), 0);
    EXPECT_EQ(ReaderDbManager().getItemId("aa"), -1) << "this book was not exported";
    std::set<std::string> texts;
    for (const Note& note : notesOnDevice()) {
        texts.insert(note.getText());
    }
    return texts;
}

}  // namespace

TEST_F(SeamContract, QueriesOfBrokenDatabaseThrow) {
    writeFile(readerDatabasePath(), std::string(4096, 'x'));
    ReaderDbManager manager;
    EXPECT_THROW(manager.getItemId(kHash), std::exception);
    EXPECT_THROW(manager.getNote("1"), std::exception);
}

TEST_F(SeamContract, ReplacedDatabaseFileIsNoticed) {
    Engine engine;
    ReaderDbManager manager;
    EXPECT_EQ(manager.getItemId("bb"), -1);
    const std::filesystem::path before = std::filesystem::current_path();
    {
        const ScratchDirectory elsewhere;
        startEmptyDevice();
        putOnDevice({"bb", "New", "", "", {}});  // may get the identifier of another book
        putOnDevice({kHash, "Dune", "", "", {{"uuid-c", "", "new", "", "", uriOfPage(1)}}});
        std::filesystem::rename(readerDatabasePath(), before / readerDatabasePath());
    }
    EXPECT_NE(manager.getItemId("bb"), -1);
    EXPECT_EQ(manager.getBookNotesHashUUIDs(kHash, true).size(), 1U);
    std::string payload;
    const auto book = static_cast<unsigned long long>(manager.getItemId(kHash));
    EXPECT_TRUE(engine->books_export(payload, {book}));
    EXPECT_EQ(textsAfterImporting(payload), std::set<std::string>{"new"});
}

TEST_F(SeamContract, FilePropertyIsKeptFromAnyThread) {
    constexpr DbManager::FileProp kProp{7};
    std::vector<std::thread> threads;
    for (const std::string hash : {"a", "b", "c", "d"}) {
        threads.emplace_back([=] {
            for (int turn = 0; turn < 10; ++turn) {
                EXPECT_TRUE(
                    DbManager::Instance()->SetFileProp(hash, kProp, std::to_string(turn)));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const char* hash : {"a", "b", "c", "d"}) {
        EXPECT_EQ(filePropOnDevice(hash, 7), "9");
    }
    EXPECT_EQ(filePropOnDevice("a", 8), std::nullopt);
    EXPECT_FALSE(DbManager::Instance()->SetFileProp("", kProp, "without a hash"));
}

TEST_F(SeamContract, FastHashFollowsContentAndFitsBuffer) {
    const std::string large(200000, 'x');
    writeFile("a", large);
    writeFile("b", large);
    writeFile("c", large + "y");
    writeFile("empty", "");
    const std::string hash = hashOf("a");
    const int length = static_cast<int>(hash.size());
    EXPECT_EQ(hashOf("b"), hash);
    EXPECT_EQ((std::set<std::string>{"", hash, hashOf("c"), hashOf("empty")}).size(), 4U);
    EXPECT_EQ(hashOf("a", length), hash);
    for (const int size : {length - 1, 1, 0, -1}) {
        EXPECT_EQ(hashOf("a", size), "") << size;
    }
    EXPECT_EQ(hashOf("missing") + hashOf("."), "");
}

TEST_F(SeamContract, RestrictedExportHoldsOnlySelectedNotes) {
    const std::vector<Note> notes = notesOnDevice();
    Engine engine;
    const std::pair<std::set<unsigned long long>, std::set<std::string>> cases[] = {
        {{notes[1].noteId}, {"more"}},
        {{notes[0].noteId, kUnknown}, {"text"}},
        {{}, {"more", "text"}},  // the earlier restriction is lifted
    };
    for (const auto& [ids, texts] : cases) {
        SCOPED_TRACE(testing::PrintToString(texts));
        engine->set_export_bookmark_ids(ids);
        std::string payload;
        EXPECT_TRUE(engine->books_export(payload, {book_}));
        EXPECT_EQ(textsAfterImporting(payload), texts);
    }
}

TEST_F(SeamContract, ExportAppendsAndFailsWithoutBook) {
    Engine engine;
    std::string payload, appended = "before";
    EXPECT_TRUE(engine->books_export(payload, {book_}));
    EXPECT_TRUE(engine->books_export(appended, {book_}));
    EXPECT_EQ(appended, "before" + payload);
    EXPECT_FALSE(engine->books_export(payload, {}));
    EXPECT_FALSE(engine->books_export(payload, {kUnknown, ~0ULL}));
}

TEST_F(SeamContract, EngineUsesDatabaseOpenedLast) {
    Veloran::ReaderLib::DataBase database;
    Veloran::ReaderLib::ImportExportDBV2 engine(&database, 10, 3);
    std::string payload;
    const auto works = [&] { return engine.books_export(payload, {book_}); };
    EXPECT_FALSE(works()) << "never opened";
    std::string path = readerDatabasePath();
    EXPECT_TRUE(database.open(path) && works());
    path = "other/empty.db";
    EXPECT_TRUE(database.open(path) && !works());
    path = ".";
    EXPECT_FALSE(database.open(path) || works());
    writeFile("export.html", documentOf("anything"));
    EXPECT_LT(engine.books_import("export.html"), 0);
}
