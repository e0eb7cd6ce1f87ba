// Records of a clippings file, and what those of a book have to do with each other.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

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

TEST(ClippingRecord, HasTitleAuthorAndText) {
    constexpr const char* kDetails = "- Your Highlight on page 5";
    const struct {
        const char* name;
        std::vector<std::string_view> lines;
        const char* record;
    } rows[] = {
        {"author", {"Emma (Jane Austen)", kDetails, "", "rich"}, "Emma|Jane Austen|rich"},
        {"nested parentheses",
         {"Faust (Teil 1) (Goethe (Johann))", kDetails},
         "Faust (Teil 1)|Goethe (Johann)|"},
        {"several authors", {"A (B, C;D, E)", kDetails}, "A|B, C;D, E|"},
        {"full-width parentheses", {"红楼梦（曹雪芹）", kDetails}, "红楼梦|曹雪芹|"},
        {"author after a dash", {"Emma - Jane Austen", kDetails}, "Emma - Jane Austen||"},
        {"one parenthesis alone", {"(Emma)", kDetails}, "(Emma)||"},
        {"parenthesis that is not at the end", {"Emma (1) b", kDetails}, "Emma (1) b||"},
        {"parenthesis that does not open", {"Emma :) b)", kDetails}, "Emma :) b)||"},
        {"byte order marks", {"\uFEFFEmma (J) ", "\uFEFF- Page 5"}, "Emma|J|"},
        {"empty lines around the text",
         {"E", kDetails, "", " a ", "", "\u3000b", "", " "},
         "E||a\n\nb"},
        {"message of a limit",
         {"E", kDetails, "", " <You have reached the clipping limit for this item>"},
         "E||<You have reached the clipping limit for this item>|limit"},
        {"short text in angle brackets",
         {"E", kDetails, "", "<b> bold </b>"},
         "E||<b> bold </b>"},
        {"address in angle brackets",
         {"E", kDetails, "", "<https://example.org/>"},
         "E||<https://example.org/>"},
        {"no second line", {"Emma"}, "refused"},
        {"empty title", {"\uFEFF ", kDetails}, "refused"},
        {"second line without a dash", {"Emma", "On page 5", "", "rich"}, "refused"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownRecord(row.lines), row.record) << row.name;
    }
}

TEST(ClippingRecord, UnknownKindFollowsFromText) {
    EXPECT_EQ(client::parseClipping({"E", "- Sivu 9", "", "a"})->kind,
              ClippingKind::Highlight);
    EXPECT_EQ(client::parseClipping({"E", "- Sivu 9", ""})->kind, ClippingKind::Bookmark);
}

Clipping clipping(ClippingKind kind, const std::string& text) {
    Clipping result;
    result.kind = kind;
    result.note.text = text;
    return result;
}

Clipping marked(ClippingRange location, const std::string& text,
                ClippingKind kind = ClippingKind::Highlight) {
    Clipping result = clipping(kind, text);
    result.location = location;
    return result;
}

Clipping onPage(ClippingRange page, const std::string& text,
                ClippingKind kind = ClippingKind::Highlight) {
    Clipping result = clipping(kind, text);
    result.page = page;
    return result;
}

Clipping noteAt(std::int64_t position, const std::string& text) {
    return marked({position, position}, text, ClippingKind::Note);
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

TEST(Passages, LatestVersionTakesOverIdentity) {
    const struct {
        const char* name;
        std::vector<Clipping> clippings;
        const char* remaining;
    } rows[] = {
        {"from one start", {marked({10, 12}, "a"), marked({10, 14}, "a b")}, "0:a b/ "},
        {"to one end", {marked({12, 14}, "b"), marked({10, 14}, "a b")}, "0:a b/ "},
        {"the same again", {marked({10, 12}, "a"), marked({10, 12}, "a")}, "0:a/ "},
        {"three versions",
         {marked({10, 12}, "a"), marked({10, 13}, "a b"), marked({10, 14}, "a b c")},
         "0:a b c/ "},
        {"inside, at neither end",
         {marked({11, 13}, "b"), marked({10, 14}, "a b c")},
         "0:b/ 1:a b c/ "},
        {"other text", {marked({10, 12}, "x"), marked({10, 14}, "a b")}, "0:x/ 1:a b/ "},
        {"shorter later", {marked({10, 14}, "a b"), marked({10, 12}, "a")}, "0:a b/ 1:a/ "},
        {"on pages", {onPage({3, 3}, "a"), onPage({3, 4}, "a b")}, "0:a b/ "},
        {"page and location",
         {onPage({10, 10}, "a"), marked({10, 14}, "a b")},
         "0:a/ 1:a b/ "},
        {"article",
         {marked({10, 12}, "a"), marked({10, 14}, "a b", ClippingKind::Article)},
         "0:a b/ "},
        {"bookmark",
         {marked({10, 10}, "", ClippingKind::Bookmark), marked({10, 14}, "a b")},
         "0:/ 1:a b/ "},
        {"without a place",
         {clipping(ClippingKind::Highlight, "a"), clipping(ClippingKind::Highlight, "a")},
         "0:a/ 1:a/ "},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownPassages(row.clippings), row.remaining) << row.name;
    }
}

TEST(Passages, NoteBecomesCommentOfItsPassage) {
    const Clipping a = marked({10, 14}, "a");
    const struct {
        const char* name;
        std::vector<Clipping> clippings;
        const char* remaining;
    } rows[] = {
        {"at the start", {a, noteAt(10, "n")}, "0:a/n "},
        {"at the end", {a, noteAt(14, "n")}, "0:a/n "},
        {"made before the passage", {noteAt(12, "n"), a}, "1:a/n "},
        {"before the start", {a, noteAt(9, "n")}, "0:a/ 1:/n "},
        {"behind the end", {a, noteAt(15, "n")}, "0:a/ 1:/n "},
        {"the passage marked last before it",
         {a, marked({12, 16}, "b"), noteAt(13, "n"), marked({13, 13}, "c")},
         "0:a/ 1:b/n 3:c/ "},
        {"passage that was marked again",
         {marked({10, 11}, "a"), noteAt(11, "n"), marked({10, 14}, "a b")},
         "0:a b/n "},
        {"two remarks", {a, noteAt(12, "m"), noteAt(12, "n")}, "0:a/m\u2029n "},
        {"remark that grew",
         {a, noteAt(12, "m"), noteAt(12, "m and more")},
         "0:a/m and more "},
        {"second remark that grew",
         {a, noteAt(12, "m"), noteAt(12, "n"), noteAt(12, "n and more")},
         "0:a/m\u2029n and more "},
        {"on pages",
         {onPage({3, 4}, "a"), onPage({4, 4}, "n", ClippingKind::Note)},
         "0:a/n "},
        {"page and location", {onPage({3, 20}, "a"), noteAt(12, "n")}, "0:a/ 1:/n "},
        {"bookmark",
         {marked({12, 12}, "", ClippingKind::Bookmark), noteAt(12, "n")},
         "0:/ 1:/n "},
        {"without a place", {a, clipping(ClippingKind::Note, "n")}, "0:a/ 1:/n "},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shownPassages(row.clippings), row.remaining) << row.name;
    }
}

TEST(Passages, CommentHasTimeOfLatestRemark) {
    std::vector<Clipping> clippings = {marked({1, 9}, "a"), noteAt(2, "m"), noteAt(3, "n")};
    clippings[1].note.time = 200;
    clippings[2].note.time = 100;
    client::attachNotes(clippings);
    EXPECT_EQ(clippings[0].note.commentTime, 200);
}

}  // namespace
