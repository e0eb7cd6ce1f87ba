// Records of a clippings file, and the relations between those of one book.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "cases.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/passages.h"

namespace {

using client::Clipping;
using client::ClippingKind;
using client::ClippingRange;

std::string shownRecord(const std::vector<std::string_view>& lines) {
    const auto clipping = client::parseClipping(lines);
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
    };
    expectEach(cases, [](const std::string& line) {
        return shownRecord({line, "\uFEFF- Page 5"});
    });
}

TEST(ClippingRecord, HasTextAndKind) {
    const NamedCase cases[] = {
        {"empty lines around and inside", " a  \n\n\u3000b\n \n", "E||a\n\nb"},
        {"message of a limit", " <You have reached the clipping limit>",
         "E||<You have reached the clipping limit>|limit"},
        {"short text in angle brackets", "<b> bold </b>", "E||<b> bold </b>"},
        {"address", "<https://example.org/>", "E||<https://example.org/>"},
    };
    expectEach(cases, [](const std::string& text) {
        std::vector<std::string_view> lines = {"E", "- Sivu 9", ""};
        for (std::string_view rest = text; !rest.empty();) {
            lines.push_back(rest.substr(0, rest.find('\n')));
            rest.remove_prefix(std::min(lines.back().size() + 1, rest.size()));
        }
        return shownRecord(lines);
    });
    EXPECT_EQ(client::parseClipping({"E", "- Sivu 9", "a"})->kind, ClippingKind::Highlight);
    EXPECT_EQ(client::parseClipping({"E", "- Sivu 9", ""})->kind, ClippingKind::Bookmark);
    EXPECT_EQ(shownRecord({"E"}), "refused");
    EXPECT_EQ(shownRecord({"E", "On page 5", "", "a"}), "refused");
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
    Clipping clipping = marked(place, place, text, ClippingKind::Note);
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

// Returns the clippings that remain, each with the index whose identity it has.
std::string shownPassages(std::vector<Clipping> clippings) {
    client::dropSuperseded(clippings);
    client::attachNotes(clippings);
    std::string shown;
    for (const Clipping& clipping : clippings) {
        if (!clipping.isDropped) {
            shown += std::to_string(clipping.origin) + ':' + clipping.note.text + '/' +
                     clipping.note.comment + ' ';
        }
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
        {"inside, at neither end", {marked(11, 13, "b"), whole}, "0:b/ 1:abc/ "},
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
        {"before the start", {a, noteAt(9, "n")}, "0:a/ 1:/n "},
        {"behind the end", {a, noteAt(15, "n")}, "0:a/ 1:/n "},
        {"latest before it", {a, b, n, marked(12, 12, "c")}, "0:a/ 1:b/n 3:c/ "},
        {"marked again", {marked(10, 11, "a"), n, marked(10, 14, "ab")}, "0:ab/n "},
        {"two remarks", {a, noteAt(12, "m"), n}, "0:a/m\u2029n "},
        {"remark that grew", {a, n, more}, "0:a/n, more "},
        {"second one grew", {a, noteAt(12, "m"), n, more}, "0:a/m\u2029n, more "},
        {"on pages", {onPages(a), onPages(n)}, "0:a/n "},
        {"page and location", {onPages(a), n}, "0:a/ 1:/n "},
        {"page of a passage with a location", {both, onPages(n)}, "0:b/ 1:/n "},
        {"bookmark", {marked(12, 12, "", ClippingKind::Bookmark), n}, "0:/ 1:/n "},
        {"without a place", {a, nowhere(n)}, "0:a/ 1:/n "},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownPassages(row.clippings), row.remaining) << row.name;
    }
}

TEST(Passages, CommentHasTimeOfLatestRemark) {
    std::vector<Clipping> clippings = {marked(1, 9, "a"), noteAt(2, "m", 200),
                                       noteAt(3, "n", 100)};
    client::attachNotes(clippings);
    EXPECT_EQ(clippings[0].note.commentTime, 200);
}

}  // namespace
