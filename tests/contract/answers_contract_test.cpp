// The part of the seam's contract that every platform implements.
#include <cstdlib>
#include <filesystem>

#include "contract_test.h"
#include "db/db_manager.h"
#include "oa_buildpath.h"
#include "readerlib/position_uri.h"
#include "scratch_files.h"
#include "system/filesystem.h"
#include "utilities/serialization_utils.h"

using veloran::db::DbManager;
using veloran::utilities::SerializationUtils;

TEST_F(SeamContract, ReaderDatabaseFindsBooksByHash) {
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

TEST_F(SeamContract, NotesComeWholeInDatabaseOrder) {
    using Fields = std::vector<std::string>;
    const auto fields = [](const Note& note) {
        return Fields{note.uuid(),    note.getColor(), note.getText(),
                      note.getNote(), note.getImage(), note.getAnchorUri()};
    };
    const std::vector<Note> notes = notesOnDevice();
    ASSERT_EQ(notes.size(), 2U);
    EXPECT_EQ(fields(notes[0]),
              (Fields{"uuid-b", "yellow", "text", "comment", kAnyBytes, uriOfPage(2.5)}));
    EXPECT_EQ(fields(notes[1]), (Fields{"uuid-a", "", "more", "", "", ""}));
    EXPECT_EQ(notes[0].getJsonTagElement(Note::Tag::Anchor, "none"), "");
    EXPECT_EQ(notes[0].getJsonTagElement(Note::Tag::Range, "begin"), "");
    EXPECT_NE(notes[0].noteId, 0U);
    EXPECT_NE(notes[0].noteId, notes[1].noteId);
    for (const char* key : {"", "-1", "no key", "987654", "99999999999999999999999"}) {
        const Note none = ReaderDbManager().getNote(key);
        EXPECT_TRUE(none.tags.empty() && none.noteId == 0) << key;
    }
}

TEST_F(SeamContract, PositionNamesPageWithFraction) {
    using Veloran::ReaderLib::extractPageFromnURI;
    double page = 0;
    EXPECT_TRUE(extractPageFromnURI(uriOfPage(12.75), page));
    EXPECT_EQ(page, 12.75);
    EXPECT_FALSE(extractPageFromnURI("", page));
}

TEST_F(SeamContract, LibraryDatabaseFindsBooksByUid) {
    DbManager* library = DbManager::Instance();
    const long long id = library->GetBookIdByUid(1, SerializationUtils::FromHex(kHash));
    ASSERT_GE(id, 0);
    std::string title, author;
    library->GetBookTitleAndAuthor(id, &title, &author);
    EXPECT_EQ(title, "Dune");
    EXPECT_EQ(author, "Frank Herbert");
    EXPECT_EQ(library->GetBookLocalFilePath(id), "Books/dune.epub");

    EXPECT_LT(library->GetBookIdByUid(1, kHash), 0) << "hexadecimal text is not the uid";
    EXPECT_LT(library->GetBookIdByUid(2, SerializationUtils::FromHex(kHash)), 0);
    std::string none, nobody;
    library->GetBookTitleAndAuthor(kUnknown, &none, &nobody);
    EXPECT_EQ(none + nobody + library->GetBookLocalFilePath(kUnknown).string(), "");
}

TEST_F(SeamContract, AnyKindOfFileExists) {
    using veloran::system::filesystem::IsFileExist;
    writeFile("file", "");
    std::filesystem::create_symlink("nowhere", "dangling");
    EXPECT_TRUE(IsFileExist("file") && IsFileExist(".") && IsFileExist("dangling"));
    ASSERT_EQ(std::system("touch -d 2040-01-01 file"), 0);
    EXPECT_TRUE(IsFileExist("file")) << "its time does not fit into 32 bits";
    EXPECT_FALSE(IsFileExist("") || IsFileExist("missing") || IsFileExist("file/below"));
    EXPECT_FALSE(IsFileExist(std::string(10000, 'x')) || IsFileExist({"file\0x", 6}));
}

TEST_F(SeamContract, FileNameFollowsLastSlash) {
    using veloran::system::filesystem::GetFileNameFromPath;
    EXPECT_EQ(GetFileNameFromPath("/a/b.epub"), "b.epub");
    EXPECT_EQ(GetFileNameFromPath("a\\b"), "a\\b");
    EXPECT_EQ(GetFileNameFromPath("/a/") + GetFileNameFromPath(""), "");
}

TEST_F(SeamContract, BuildPathCreatesOnlyDirectories) {
    for (const char* path : {"a/b/file", "a/b/file", "file"}) {
        EXPECT_EQ(oa_buildpath(path), 0) << path;
    }
    EXPECT_TRUE(std::filesystem::is_empty("a/b"));
    writeFile("a/b/file", "");
    EXPECT_EQ(oa_buildpath("a/b/file/c/d"), -1);
}

TEST_F(SeamContract, HexIgnoresCaseAndBase64IsPadded) {
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
