// Loading into a collection that has books and notes already.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "collection_in_memory.h"
#include "store/note_tags.h"

namespace {

std::string valueOf(const host::NoteRecord& note, std::int32_t number) {
    for (const host::TagRecord& tag : note.tags) {
        if (tag.tag == number) {
            const std::string uri = tag.json.value_or("");
            if (uri.find("=r.") != std::string::npos) {  // the number in its file
                return "-";
            }
            return tag.text + uri.substr(std::min(uri.find('='), uri.size()));
        }
    }
    return "-";
}

// Returns the notes' text, comment, colour and page.
std::string shortly(const std::vector<host::BookRecord>& books) {
    std::string shown;
    for (const host::BookRecord& book : books) {
        shown += book.title + ": ";
        for (const host::NoteRecord& note : book.notes) {
            shown += valueOf(note, host::kTextTag) + ' ' +
                     valueOf(note, host::kCommentTag) + ' ' +
                     valueOf(note, host::kColorTag) + ' ' +
                     valueOf(note, host::kAnchorTag) + "; ";
        }
    }
    return shown;
}

std::string clipping(const std::string& details, const std::string& text,
                     const std::string& book = "Emma (J)") {
    return book + "\n- Your " + details + "\n\n" + text + "\n==========\n";
}

// Returns a device file with one book.
std::string device(const std::string& book, const std::string& notes) {
    return R"({"books": [{)" + book + R"(, "notes": [)" + notes + "]}]}";
}

std::string emma(const std::string& note, const std::string& hash = "ab") {
    return device(R"("hash": ")" + hash + R"(", "title": "Emma", "author": "J")", note);
}

std::string page(const std::string& note) {
    return "<html><h1>2026-03-07 09:05:01 - Emma</h1><span>J</span>"
           "<div id='u' class=\"bookmark bm-color-red\">" +
           note + "</div></html>";
}

TEST(Loading, MeetsWhatTheCollectionHas) {
    const std::string passage = clipping("Highlight on page 1-2", "a");
    const std::string whole = clipping("Highlight on page 1-3", "ab");
    const std::string remark = clipping("Note on page 2", "mine");
    const std::string none = emma(R"({"uuid": "u"})");
    const std::string some = emma(R"({"uuid": "u", "text": "t", "comment": "c",
        "color": "blue", "page": 5.25, "timestamp": 9})");
    const std::string shown =
        "<p class='bm-page'>5</p><div class='bm-text'><p>x</p></div>"
        "<div class='bm-note'><p>y</p></div>";
    const struct {
        const char* name;
        std::vector<std::string> loads;
        const char* notes;
    } rows[] = {
        {"remark, then its passage", {remark, remark + passage}, "Emma: a mine - =1\"}; "},
        {"earlier records before a later one",
         {whole, passage + whole},
         "Emma: ab - - =1\"}; "},
        {"page that shows other parts", {some, page(shown)}, "Emma: t c blue =5.25\"}; "},
        {"page that shows more", {none, page(shown)}, "Emma: x y red =5\"}; "},
        {"page of an unknown note", {page(shown)}, "Emma: x y red =5\"}; "},
        {"place that was not stored before",
         {emma(R"({"uuid": "u", "timestamp": 9, "page": 5})"),
          emma(R"({"uuid": "u", "timestamp": 9, "page": 5, "location": 7})")},
         "Emma: - - - =5&location=7\"}; "},
        {"less of a place",
         {emma(R"({"uuid": "u", "timestamp": 9, "page": 5, "location": 7})"),
          emma(R"({"uuid": "u", "timestamp": 9, "page": 5})")},
         "Emma: - - - =5&location=7\"}; "},
        {"another place at the same time",
         {emma(R"({"uuid": "u", "page": 5})"),
          emma(R"({"uuid": "u", "page": 6, "location": 7})")},
         "Emma: - - - =5\"}; "},
        {"newer note without a place",
         {some, emma(R"({"uuid": "u", "timestamp": 10})")},
         "Emma: t c blue =5.25\"}; "},
        {"place after a number in the file",
         {none, emma(R"({"uuid": "u", "location": 7})")},
         "Emma: - - - =7\"}; "},
        {"title in other spelling",
         {device(R"("hash": "ab", "title": "E\u0301 \u200bm", "author": " J")", ""),
          clipping("Note", "mine", "\u00C9  m (J)")},
         "E\u0301 \u200bm: - mine - -; "},
        {"other author",
         {emma(""), clipping("Note", "mine", "Emma (K)")},
         "Emma: - mine - -; Emma: "},
        {"two books with the title",
         {emma(""), emma("", "ac"), clipping("Note", "mine")},
         "Emma: - mine - -; Emma: Emma: "},
        {"two books with the title, of which one has the note",
         {emma("", "aa"), clipping("Note", "mine"), emma("", "ab"), emma("", "99"),
          clipping("Note", "mine")},
         "Emma: Emma: - mine - -; Emma: "},
        {"page of a book without a title",
         {device(R"("hash": "ab", "author": "J")", R"({"uuid": "u"})"),
          "<html><h1></h1><span>J</span><div id='u' class=\"bookmark "
          "bm-color-red\"></div>"},
         ": - - red -; "},
        {"book with the name of its file",
         {device(R"("hash": "ab", "path": "/b/Emma", "author": "J")", ""),
          clipping("Note", "mine")},
         ": - mine - -; "},
        {"device file without a title",
         {emma(""), device(R"("hash": "ab", "author": "K")", "")},
         "Emma: "},
    };
    const ScratchDirectory scratch;
    for (const auto& row : rows) {
        CollectionInMemory collection;
        for (const std::string& content : row.loads) {
            collection.load(content);
        }
        EXPECT_EQ(shortly(collection.records()), row.notes) << row.name;
        EXPECT_EQ(collection.load(row.loads.back()), 0) << row.name;
    }
}

// The user has given the remark a colour meanwhile.
TEST(Loading, KeepsReplacedNoteThatSomethingElseChanged) {
    const ScratchDirectory scratch;
    const std::string remark = clipping("Note on page 2", "mine");
    CollectionInMemory collection;
    collection.load(remark);
    const host::BookRecord book = collection.records().at(0);
    collection.load(
        device(R"("hash": ")" + book.fastHash + '"',
               R"({"uuid": ")" + book.notes.at(0).uuid + R"(", "color": "red"})"));
    EXPECT_EQ(collection.load(remark + clipping("Highlight on page 1-3", "a")), 1);
    EXPECT_EQ(shortly(collection.records()), "Emma: a mine - =1\"}; - mine red =2\"}; ");
}

// The user has commented on the passage meanwhile, so that it does not take the remark.
TEST(Loading, KeepsReplacedRemarkThatItsPassageLacks) {
    const ScratchDirectory scratch;
    const std::string file =
        clipping("Highlight on page 1", "a") + clipping("Note on page 3", "mine");
    CollectionInMemory collection;
    collection.load(file);
    const host::BookRecord book = collection.records().at(0);
    collection.load(device(
        R"("hash": ")" + book.fastHash + '"',
        R"({"uuid": ")" + book.notes.at(0).uuid + R"(", "comment": "c", "timestamp": 9})"));
    collection.load(file + clipping("Highlight on page 1-3", "ab"));
    EXPECT_EQ(shortly(collection.records()), "Emma: - mine - =3\"}; ab c - =1\"}; ");
}

TEST(Loading, CompletedPlaceIsNotKept) {
    const ScratchDirectory scratch;
    CollectionInMemory collection;
    collection.load(emma(R"({"uuid": "u", "page": 5})"));
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "page": 5, "chapter": "I"})")), 1);
    EXPECT_FALSE(collection.isAnyKept);
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "page": 6, "chapter": "I"})")), 0);
    EXPECT_TRUE(collection.isAnyKept);
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "chapter": "I"})")), 0);
    EXPECT_FALSE(collection.isAnyKept);
}

}  // namespace
