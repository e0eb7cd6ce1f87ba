// Records of a clippings file, and the relations between those of one book.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cases.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/passages.h"
#include "client/text/line_breaks.h"
#include "sample_source.h"

namespace {

using client::Clipping;
using client::ClippingKind;
using client::ClippingRange;

using namespace std::string_literals;

std::string shownRecord(const std::string& record) {
    const auto clipping = client::parseClipping(record);
    return clipping ? clipping->title + '|' + clipping->author + '|' + clipping->note.text +
                          (clipping->hasLimitMessage ? "|limit" : "")
                    : "refused";
}

TEST(ClippingRecord, HasTitleAndAuthor) {
    const NamedCase cases[] = {
        {"author", "Emma (Jane Austen)", "Emma|Jane Austen|"},
        {"nested parentheses", "Faust (1) (Goethe (Johann))", "Faust (1)|Goethe (Johann)|"},
        {"several authors", "A (B, C;D, E)", "A|B, C;D, E|"},
        {"full-width parentheses", "红楼梦（曹雪芹）", "红楼梦|曹雪芹|"},
        {"author after a dash", "Emma - Jane Austen", "Emma - Jane Austen||"},
        {"one parenthesis alone", "(Emma)", "(Emma)||"},
        {"parenthesis that is not at the end", "Emma (1) b", "Emma (1) b||"},
        {"parenthesis that does not open", "Emma :) b)", "Emma :) b)||"},
        {"byte order mark and spaces", "\uFEFF Emma\u00A0(J) ", "Emma|J|"},
        {"empty", "\uFEFF ", "refused"},
        {"second line of a record", "- Note on page 5", "refused"},
        {"Windows-1252", "L\x92\xC9tranger (Ren\xE9)\xA0", "L’Étranger (René)||"},
    };
    expectEach(cases, [](const std::string& line) {
        return shownRecord(line + "\n\uFEFF- Page 5");
    });
}

TEST(ClippingRecord, HasTextAndKind) {
    const NamedCase cases[] = {
        {"empty lines around and inside", " a  \n\n\u3000b\n \n", "E||a\n\nb"},
        {"message of a limit", " <You have reached the clipping limit>",
         "E||<You have reached the clipping limit>|limit"},
        {"message without spaces", "<您已达到本内容的剪贴上限>",
         "E||<您已达到本内容的剪贴上限>|limit"},
        {"short text in angle brackets", "<b> bold </b>", "E||<b> bold </b>"},
        {"address", "<https://example.org/>", "E||<https://example.org/>"},
        {"element", "<p>the first of many words</p>", "E||<p>the first of many words</p>"},
        {"attributes", "<a b='c' the='d' e='f'>", "E||<a b='c' the='d' e='f'>"},
        {"code", "<T extends Comparable>", "E||<T extends Comparable>"},
        {"comment", "<!-- the first of many -->", "E||<!-- the first of many -->"},
        {"speech", "<Handsome, clever, and rich.>", "E||<Handsome, clever, and rich.>"},
        {"several lines", "<a b c d\ne f>", "E||<a b c d\ne f>"},
        {"brackets alone", "<>", "E||<>"},
        {"Windows-1252", "\x93h\xE4ndsome\x94\nä\n\x81\xA0", "E||“händsome”\nä\n\uFFFD"},
    };
    expectEach(cases, [](const std::string& text) {
        return shownRecord("E\n- Sivu 9\n\n" + text);
    });
    EXPECT_EQ(client::parseClipping("E\n- Sivu 9\na")->kind, ClippingKind::Highlight);
    EXPECT_EQ(client::parseClipping("E\n- Sivu 9\n")->kind, ClippingKind::Bookmark);
    EXPECT_EQ(shownRecord("E"), "refused");
    EXPECT_EQ(shownRecord("E\nOn page 5\n\na"), "refused");
}

// Returns the text with another one for each line feed.
std::string withEnds(const std::string& end, const std::string& text) {
    return client::replaced(text, "\n", end);
}

std::string inUtf16(const std::string& text, bool isLittleEndian) {
    std::string result = isLittleEndian ? "\xFF\xFE" : "\xFE\xFF";
    for (const char character : text) {
        result +=
            isLittleEndian ? std::string{character, '\0'} : std::string{'\0', character};
    }
    return result;
}

// Returns the title and the texts of each book, and what is to be said about the file.
std::string shownClippings(const std::string& content) {
    std::string shown;
    try {
        const client::SourceContent source = readSample(content);
        for (const client::IncomingBook& book : source.books) {
            shown += book.book.title + ':';
            for (const client::Note& note : book.notes) {
                shown += ' ' + note.text + note.comment;
            }
            shown += '\n';
        }
        return shown + source.remark + source.skipped.summary("it");
    } catch (const client::UserError&) {
        return "refused";
    }
}

TEST(ClippingsFile, IsReadHoweverItWasDamaged) {
    const ScratchDirectory scratch;
    const std::string a = "A\n- Your Highlight on page 1\n\na\n==========\n";
    const std::string b = "\uFEFFB\n- Your Note on page 2\n\nb\n==========\n";
    const std::string latin = "C\xE9\n- Note on page 3\n\n\xE4\n==========\n";
    const std::string skipped = "Not everything in it could be read:\n  line ";
    const std::string noEnd = ": the record has no end, as if the file were cut\n";
    const std::string noTitle = ": its first two lines are not those of a record\n";
    const NamedCase cases[] = {
        {"separator first", "\uFEFF==========\n" + a, "A: a\n"},
        {"empty line first", "\uFEFF\n" + a, "A: a\n"},
        {"damaged record first", "x\n==========\n" + a, "A: a\n" + skipped + "1" + noTitle},
        {"title missing", "\n" + a.substr(2) + a, "A: a\n" + skipped + "2" + noTitle},
        {"without the last line end", a.substr(0, a.size() - 1) + b, "A: a\nB: b\n"},
        {"cut before a byte order mark", a.substr(0, 31) + b,
         "B: b\n" + skipped + "1" + noEnd},
        {"separator within text", a.substr(0, 30) + "==========b\nc\n" + a.substr(30),
         "A: ==========b\nc\na\n"},
        {"line ends of a Macintosh", withEnds("\r", a + b), "A: a\nB: b\n"},
        {"line ends converted twice", withEnds("\r\r\n", a) + a, "A: a\n"},
        {"little-endian UTF-16", inUtf16(withEnds("\r\n", a), true), "A: a\n"},
        {"big-endian UTF-16", inUtf16(a, false), "A: a\n"},
        {"Windows-1252", a + latin + "D\xE9\n",
         "A: a\nCé: ä\nsample: line 6 and 1 more are not UTF-8 and were read as "
         "Windows-1252\n" +
             skipped + "11" + noEnd},
        {"list in Markdown", "x\n==========\ny\n- z\n==========\n", "refused"},
    };
    expectEach(cases, shownClippings);
}

Clipping marked(std::int64_t first, std::int64_t last, const std::string& text,
                ClippingKind kind = ClippingKind::Highlight) {
    Clipping clipping;
    clipping.kind = kind;
    clipping.location = ClippingRange{first, last};
    clipping.note.text = text;
    return clipping;
}

Clipping noteAt(std::int64_t place, const std::string& text, std::int64_t time = 0) {
    Clipping clipping = marked(place, place, "", ClippingKind::Note);
    clipping.note.comment = text;
    clipping.note.time = time;
    return clipping;
}

Clipping onPages(Clipping clipping) {
    clipping.page.swap(clipping.location);
    return clipping;
}

Clipping nowhere(Clipping clipping) {
    clipping.location.reset();
    return clipping;
}

// Returns the notes that remain, each with the number of the clipping whose uuid it has.
std::string shownPassages(const std::vector<Clipping>& clippings) {
    client::Passages passages;
    for (std::size_t i = 0; i < clippings.size(); ++i) {
        Clipping clipping = clippings[i];
        clipping.note.uuid = std::to_string(i);
        passages.add(std::move(clipping));
    }
    client::IncomingBook book;
    passages.moveTo(book);
    std::string shown;
    for (const client::Note& note : book.notes) {
        shown += note.uuid + ':' + note.text + '/' + note.comment + ' ';
    }
    return shown;
}

struct PassagesRow {
    const char* name;
    std::vector<Clipping> clippings;
    const char* remaining;
};

TEST(Passages, LatestVersionTakesOverIdentity) {
    const Clipping whole = marked(10, 14, "abc");
    const PassagesRow rows[] = {
        {"from one start", {marked(10, 12, "a"), whole}, "0:abc/ "},
        {"to one end", {marked(12, 14, "c"), whole}, "0:abc/ "},
        {"the same again", {whole, whole}, "0:abc/ "},
        {"thrice", {marked(10, 11, "a"), marked(10, 12, "ab"), whole}, "0:abc/ "},
        {"inside, at neither end", {marked(11, 13, "b"), whole}, "1:abc/ 0:b/ "},
        {"other text", {marked(10, 12, "x"), whole}, "0:x/ 1:abc/ "},
        {"shorter later", {whole, marked(10, 12, "a")}, "0:abc/ 1:a/ "},
        {"on pages", {onPages(marked(10, 12, "a")), onPages(whole)}, "0:abc/ "},
        {"page and location", {onPages(marked(10, 12, "a")), whole}, "0:a/ 1:abc/ "},
        {"article", {marked(10, 12, "a", ClippingKind::Article), whole}, "0:abc/ "},
        {"bookmark", {marked(10, 10, "", ClippingKind::Bookmark), whole}, "0:/ 1:abc/ "},
        {"without a place", {nowhere(whole), nowhere(whole)}, "0:abc/ 1:abc/ "},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownPassages(row.clippings), row.remaining) << row.name;
    }
}

TEST(Passages, NoteBecomesCommentOfItsPassage) {
    const Clipping a = marked(10, 14, "a");
    const Clipping b = marked(12, 16, "b");
    Clipping both = b;
    both.page = ClippingRange{10, 14};
    const Clipping n = noteAt(12, "n");
    const Clipping more = noteAt(12, "n, more");
    const PassagesRow rows[] = {
        {"at the start", {a, noteAt(10, "n")}, "0:a/n "},
        {"at the end", {a, noteAt(14, "n")}, "0:a/n "},
        {"made before the passage", {n, a}, "1:a/n "},
        {"before the start", {a, noteAt(9, "n")}, "1:/n 0:a/ "},
        {"behind the end", {a, noteAt(15, "n")}, "0:a/ 1:/n "},
        {"latest before it", {a, b, n, marked(12, 12, "c")}, "0:a/ 1:b/n 3:c/ "},
        {"marked again", {marked(10, 11, "a"), n, marked(10, 14, "ab")}, "0:ab/n "},
        {"two remarks", {a, noteAt(12, "m"), n}, "0:a/m\u2029n "},
        {"remark that grew", {a, n, more}, "0:a/n, more "},
        {"two remarks, one in the other", {a, n, noteAt(13, "no")}, "0:a/n\u2029no "},
        {"second one grew", {a, noteAt(12, "m"), n, more}, "0:a/m\u2029n, more "},
        {"longer one at another place", {a, noteAt(11, "n"), more}, "0:a/n\u2029n, more "},
        {"on pages", {onPages(a), onPages(n)}, "0:a/n "},
        {"page and location", {onPages(a), n}, "0:a/ 1:/n "},
        {"page of a passage with a location", {both, onPages(n)}, "0:b/ 1:/n "},
        {"bookmark", {marked(12, 12, "", ClippingKind::Bookmark), n}, "0:/ 1:/n "},
        {"without a place", {a, nowhere(n)}, "1:/n 0:a/ "},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownPassages(row.clippings), row.remaining) << row.name;
    }
}

struct Times {
    std::int64_t time, changeTime, commentTime;
};

TEST(Passages, LaterRecordIsNewer) {
    const auto at = [](Clipping clipping, std::int64_t time) {
        clipping.note.time = time;
        return clipping;
    };
    const Clipping part = marked(1, 5, "a");
    const Clipping whole = marked(1, 9, "ab");
    const struct {
        const char* name;
        std::vector<Clipping> clippings;
        Times times;
    } rows[] = {
        {"marked again", {at(part, 100), at(whole, 200)}, {200, 200, 200}},
        {"by an earlier clock", {at(part, 100), at(whole, 90)}, {90, 101, 101}},
        {"undated", {part, whole}, {0, 1, 1}},
        {"remark", {at(whole, 100), noteAt(2, "m", 200)}, {100, 100, 200}},
        {"remarks by an earlier clock",
         {at(whole, 1), noteAt(2, "m", 200), noteAt(3, "n", 100)},
         {1, 1, 201}},
        {"marked again, with a remark",
         {at(part, 100), noteAt(2, "m", 200), at(whole, 90)},
         {90, 101, 201}},
        {"two joined, of which one has a remark",
         {at(part, 100), noteAt(2, "m", 200), at(marked(6, 9, "b"), 300), at(whole, 50)},
         {50, 301, 301}},
    };
    for (const auto& row : rows) {
        client::Passages passages;
        for (const Clipping& clipping : row.clippings) {
            passages.add(clipping);
        }
        client::IncomingBook book;
        passages.moveTo(book);
        const client::Note note = *book.notes.begin();
        EXPECT_EQ(note.time, row.times.time) << row.name;
        EXPECT_EQ(note.changeTime, row.times.changeTime) << row.name;
        EXPECT_EQ(note.commentTime, row.times.commentTime) << row.name;
    }
}

}  // namespace
