// Loading into a collection that has books and notes already.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "client/collection/loading.h"
#include "client/error.h"
#include "client/sources/source.h"
#include "scratch_files.h"
#include "store/note_tags.h"

namespace {

// A collection in memory.
class Collection {
public:
    int load(std::string_view content) {
        writeFile("source", std::string(content));
        client::SourceContent source;
        try {
            source = client::readSource("source");
        } catch (const client::UserError&) {  // a first record that is cut is refused
        }
        const client::LoadResult result =
            client::loadBooks(source.books, source.onKnownBook, reader_, library_);
        isAnyKept = !result.kept.isEmpty();
        return result.changed;
    }

    std::vector<host::BookRecord> records() { return reader_.records(); }

    bool isAnyKept = false;  // of the last file, because it differed

private:
    host::ReaderStore reader_{":memory:"};
    host::LibraryStore library_{":memory:"};
};

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

std::string show(const std::vector<host::BookRecord>& books) {
    std::string text;
    for (const host::BookRecord& book : books) {
        text += book.fastHash + ' ' + book.title + '\n';
        for (const host::NoteRecord& note : book.notes) {
            for (const host::TagRecord& tag : note.tags) {
                text += "  " + note.uuid + ' ' + std::to_string(tag.tag) + ' ' + tag.text +
                        tag.json.value_or("") + '@' + std::to_string(tag.timestamp) + '\n';
            }
        }
    }
    return text;
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
        Collection collection;
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
    Collection collection;
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
    Collection collection;
    collection.load(file);
    const host::BookRecord book = collection.records().at(0);
    collection.load(device(
        R"("hash": ")" + book.fastHash + '"',
        R"({"uuid": ")" + book.notes.at(0).uuid + R"(", "comment": "c", "timestamp": 9})"));
    collection.load(file + clipping("Highlight on page 1-3", "ab"));
    EXPECT_EQ(shortly(collection.records()), "Emma: - mine - =3\"}; ab c - =1\"}; ");
}

// A few places, times and texts, so that records meet.
class Generator {
public:
    explicit Generator(unsigned seed) : random_(seed) {}

    std::size_t below(std::size_t limit) { return random_() % limit; }

    std::string file() {
        std::string text;
        std::vector<std::string> records;
        for (std::size_t count = 2 + below(12); count > 0; --count) {
            const bool isCopy = !records.empty() && below(10) == 0;
            records.push_back(isCopy ? records[below(records.size())] : record());
            text += records.back();
        }
        return text;
    }

private:
    template <std::size_t count>
    std::string oneOf(const char* const (&texts)[count]) {
        return texts[below(count)];
    }

    std::string range(const char* name) {
        const std::size_t first = 1 + below(8);
        const std::size_t length = below(4);
        return std::string(name) + ' ' + std::to_string(first) +
               (length == 0 ? "" : '-' + std::to_string(first + length));
    }

    std::string place() {
        switch (below(8)) {
            case 0:
                return "";
            case 1:
                return "on page xi | " + range("Location");
            case 2:
                return range("on page") + " | " + range("Location");
            case 3:
            case 4:
                return range("on page");
            default:
                return range("at location");
        }
    }

    std::string date() {
        const std::string minute = std::to_string(10 + below(20));
        return below(4) == 0 ? ""
                             : " | Added on Sunday, June 10, 2012 10:" + minute + ":00 PM";
    }

    std::string record() {
        static constexpr const char* kTitles[] = {"Emma (J)",       "Emma (J)",
                                                  "\uFEFFEmma (J)", "\u00C9mma  (J)",
                                                  "E\u0301mma (J)", "\xC9mma (J)"};
        static constexpr const char* kTexts[] = {"a", "b",         "ab",
                                                 "",  "\xC9\r\na", "c\u2029b"};
        static constexpr const char* kKinds[] = {"Highlight", "Highlight", "Note", "Note",
                                                 "Bookmark"};
        const std::string kind = oneOf(kKinds);
        return oneOf(kTitles) + "\n- Your " + kind + ' ' + place() + date() + "\n\n" +
               (kind == "Bookmark" ? "" : oneOf(kTexts)) +
               "\n==========" + (below(8) == 0 ? "" : "\n");
    }

    std::mt19937 random_;
};

void expectGrownEqualsFresh(unsigned seed) {
    Generator generator(seed);
    const std::string file = generator.file();
    Collection fresh;
    fresh.load(file);
    Collection grown;
    std::vector<std::size_t> cuts = {file.size(), file.size()};  // twice changes nothing
    for (std::size_t count = generator.below(5); count > 0; --count) {
        cuts.push_back(generator.below(file.size()));
    }
    std::sort(cuts.begin(), cuts.end());
    for (const std::size_t cut : cuts) {
        grown.load(std::string_view(file).substr(0, cut));
    }
    ASSERT_EQ(show(grown.records()), show(fresh.records())) << "seed " << seed << '\n'
                                                            << file;
}

TEST(Loading, CompletedPlaceIsNotKept) {
    const ScratchDirectory scratch;
    Collection collection;
    collection.load(emma(R"({"uuid": "u", "page": 5})"));
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "page": 5, "chapter": "I"})")), 1);
    EXPECT_FALSE(collection.isAnyKept);
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "page": 6, "chapter": "I"})")), 0);
    EXPECT_TRUE(collection.isAnyKept);
    EXPECT_EQ(collection.load(emma(R"({"uuid": "u", "chapter": "I"})")), 0);
    EXPECT_FALSE(collection.isAnyKept);
}

// NOTES_EXPORT_GROWING_FILES sets the number of files.
TEST(Growth, GivesWhatFreshLoadGives) {
    const ScratchDirectory scratch;
    const char* count = std::getenv("NOTES_EXPORT_GROWING_FILES");
    const unsigned long files = count == nullptr ? 200 : std::stoul(count);
    for (unsigned seed = 1; seed <= files && !HasFatalFailure(); ++seed) {
        expectGrownEqualsFresh(seed);
    }
}

}  // namespace
