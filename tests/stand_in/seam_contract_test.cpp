// What the seam's headers promise, held against a platform. Nothing here knows which.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "contract_device.h"
#include "db/db_manager.h"
#include "device.h"
#include "fast_book_hash.h"
#include "oa_buildpath.h"
#include "system/filesystem.h"
#include "utilities/reader_db_manager.h"
#include "utilities/serialization_utils.h"

using veloran::db::DbManager;
using veloran::utilities::Note;
using veloran::utilities::ReaderDbManager;
using veloran::utilities::SerializationUtils;

namespace {

const std::string kHash = "00ff7a";
const std::string kAnyBytes("\0\xff\xd8 \x80'\"", 7);
constexpr int kUnknown = 987654;

std::vector<Note> notesOnDevice() {
    ReaderDbManager manager;
    std::vector<Note> notes;
    for (const auto& key : manager.getBookNotesHashUUIDs(kHash, true)) {
        notes.push_back(manager.getNote(key.first));
    }
    return notes;
}

class SeamContract : public OnDevice {
protected:
    SeamContract() {
        putOnDevice({"aa", "Other", "", "", {}});
        putOnDevice({kHash,
                     "Dune",
                     "Frank Herbert",
                     "Books/dune.epub",
                     {{"uuid-b", "yellow", "text", "comment", kAnyBytes, "book?page=2"},
                      {"uuid-a", "", "more", "", "", ""}}});
        book_ = static_cast<unsigned long long>(ReaderDbManager().getItemId(kHash));
    }

    unsigned long long book_;
};

std::string hashOf(const std::string& path, int size = 256) {
    std::string buffer(256, '#');
    const int length = FastBookHash(path.c_str(), buffer.data(), size);
    const auto end = static_cast<std::size_t>(std::max(size, 0));
    EXPECT_LE(length, std::max(size, 0));
    EXPECT_EQ(buffer.find_first_not_of('#', end), buffer.npos) << "wrote past the buffer";
    return buffer.substr(0, static_cast<std::size_t>(std::max(length, 0)));
}

// The texts of the book's notes on a device that has nothing but the payload.
std::set<std::string> textsAfterImporting(const std::string& payload) {
    const ScratchDirectory elsewhere;
    EXPECT_GE(imported(documentOf(payload)), 0);
    EXPECT_EQ(ReaderDbManager().getItemId("aa"), -1) << "a book that was not exported";
    std::set<std::string> texts;
    for (const Note& note : notesOnDevice()) {
        texts.insert(note.getText());
    }
    return texts;
}

}  // namespace

TEST_F(SeamContract, ReaderDatabaseFindsBooksByTheirHash) {
    ReaderDbManager manager;
    const auto books = manager.getBookByFastHash(kHash);
    ASSERT_FALSE(books.empty());
    EXPECT_EQ(books.front().title, "Dune");
    EXPECT_EQ(books.front().path, "Books/dune.epub");
    EXPECT_EQ(manager.getBookFastHashById(manager.getItemId(kHash)), kHash);
    EXPECT_TRUE(manager.getBookNotesHashUUIDs("aa", true).empty());

    EXPECT_EQ(manager.getItemId("ab"), -1);
    EXPECT_TRUE(manager.getBookByFastHash("ab").empty());
    EXPECT_TRUE(manager.getBookFastHashById(kUnknown).empty());
    EXPECT_TRUE(manager.getBookNotesHashUUIDs("ab", true).empty());
}

TEST_F(SeamContract, NotesComeInDatabaseOrderWithEverythingTheyHold) {
    const std::vector<Note> notes = notesOnDevice();
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_EQ(notes[0].uuid(), "uuid-b");
    EXPECT_EQ(notes[0].getColor(), "yellow");
    EXPECT_EQ(notes[0].getText(), "text");
    EXPECT_EQ(notes[0].getNote(), "comment");
    EXPECT_EQ(notes[0].getImage(), kAnyBytes);
    EXPECT_EQ(notes[0].getAnchorUri(), "book?page=2");
    EXPECT_EQ(notes[1].uuid(), "uuid-a");
    EXPECT_EQ(notes[1].getColor() + notes[1].getNote() + notes[1].getImage(), "");
    EXPECT_NE(notes[0].noteId, 0U);
    EXPECT_NE(notes[0].noteId, notes[1].noteId);
    for (const char* key : {"", "-1", "no key", "987654", "99999999999999999999999"}) {
        const Note none = ReaderDbManager().getNote(key);
        EXPECT_TRUE(none.tags.empty() && none.noteId == 0) << key;
    }
}

TEST_F(SeamContract, ManagerOfABrokenDatabaseThrowsFromQueriesAndIsDestroyedInPeace) {
    writeFile(readerDatabasePath(), std::string(4096, 'x'));
    ReaderDbManager manager;
    EXPECT_THROW(manager.getItemId(kHash), std::exception);
    EXPECT_THROW(manager.getNote("1"), std::exception);
}

TEST_F(SeamContract, LibraryDatabaseAnswersForKnownAndUnknownBooks) {
    DbManager* library = DbManager::Instance();
    const long long id = library->GetBookIdByUid(1, SerializationUtils::FromHex(kHash));
    ASSERT_GE(id, 0);
    std::string title, author;
    library->GetBookTitleAndAuthor(id, &title, &author);
    EXPECT_EQ(title, "Dune");
    EXPECT_EQ(author, "Frank Herbert");
    EXPECT_EQ(library->GetBookLocalFilePath(id), "Books/dune.epub");

    EXPECT_LT(library->GetBookIdByUid(1, kHash), 0) << "the text is not the uid";
    EXPECT_LT(library->GetBookIdByUid(2, SerializationUtils::FromHex(kHash)), 0);
    std::string none, nobody;
    library->GetBookTitleAndAuthor(kUnknown, &none, &nobody);
    EXPECT_EQ(none + nobody + library->GetBookLocalFilePath(kUnknown).string(), "");
}

TEST_F(SeamContract, FilePropertyReplacesTheEarlierOneFromAnyThread) {
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

TEST_F(SeamContract, FastHashNamesTheContentAndNotThePath) {
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

TEST_F(SeamContract, AnythingAtAPathExistsAndWhatCannotBeLookedUpDoesNot) {
    using veloran::system::filesystem::IsFileExist;
    writeFile("file", "");
    std::filesystem::create_symlink("nowhere", "dangling");
    EXPECT_TRUE(IsFileExist("file") && IsFileExist(".") && IsFileExist("dangling"));
    EXPECT_FALSE(IsFileExist("") || IsFileExist("missing") || IsFileExist("file/below"));
    EXPECT_FALSE(IsFileExist(std::string(10000, 'x')));
}

TEST_F(SeamContract, FileNameIsWhatFollowsTheLastSlash) {
    using veloran::system::filesystem::GetFileNameFromPath;
    EXPECT_EQ(GetFileNameFromPath("/a/b.epub"), "b.epub");
    EXPECT_EQ(GetFileNameFromPath("a\\b"), "a\\b");
    EXPECT_EQ(GetFileNameFromPath("/a/") + GetFileNameFromPath(""), "");
}

TEST_F(SeamContract, DirectoriesToAFileAreMadeAndTheFileIsNot) {
    for (const char* path : {"a/b/file", "a/b/file", "file"}) {
        EXPECT_EQ(oa_buildpath(path), 0) << path;
    }
    EXPECT_TRUE(std::filesystem::is_empty("a/b"));
    writeFile("a/b/file", "");
    EXPECT_EQ(oa_buildpath("a/b/file/c/d"), -1);
}

TEST_F(SeamContract, BytesAreSpelledInHexadecimalOfEitherCaseAndInPaddedBase64) {
    EXPECT_EQ(SerializationUtils::FromHex("00ffAaBb7f"),
              std::string("\0\xff\xaa\xbb\x7f", 5));
    EXPECT_NO_THROW(SerializationUtils::FromHex("zz-1 \xff"));
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foob", "Zm9vYg=="},
        {"\xff\xfe\xfb", "//77"},
        {std::string(300001, '\0'), std::string(400000, 'A') + "AA=="},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_TRUE(SerializationUtils::ToBase64(bytes) == text) << text.substr(0, 9);
    }
}

TEST_F(SeamContract, ExportRestrictedToNotesHoldsThoseAndNoOthers) {
    const std::vector<Note> notes = notesOnDevice();
    Engine engine;
    const std::pair<std::set<unsigned long long>, std::set<std::string>> cases[] = {
        {{notes[1].noteId}, {"more"}},
        {{notes[0].noteId, kUnknown}, {"text"}},
        {{}, {"more", "text"}},  // the earlier restriction is lifted
    };
    for (const auto& [ids, texts] : cases) {
        engine->set_export_bookmark_ids(ids);
        std::string payload;
        EXPECT_TRUE(engine->books_export(payload, {book_}));
        EXPECT_EQ(textsAfterImporting(payload), texts);
    }
}

TEST_F(SeamContract, ExportAppendsAndFailsWithoutABook) {
    Engine engine;
    std::string payload, appended = "before";
    EXPECT_TRUE(engine->books_export(payload, {book_}));
    EXPECT_TRUE(engine->books_export(appended, {book_}));
    EXPECT_EQ(appended, "before" + payload);
    EXPECT_FALSE(engine->books_export(payload, {}));
    EXPECT_FALSE(engine->books_export(payload, {kUnknown, ~0ULL}));
}

TEST_F(SeamContract, EngineServesTheHandleAsItWasOpenedLastOrFails) {
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
