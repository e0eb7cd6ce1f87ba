// The visible part of an exported page, also of one that other programs wrote again.
#include "client/sources/exported_page/visible_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "c_exporter.h"
#include "cases.h"
#include "client/text/line_breaks.h"
#include "sample_source.h"

namespace {

using client::readVisiblePage;

std::string shownPage(const std::string& html) {
    const client::VisiblePage page = readVisiblePage(html);
    std::string shown = page.heading + '|' + page.author + '|' + page.bookHash + '\n';
    for (const client::Note& note : page.notes) {
        shown += show(note) + '\n';
    }
    for (const std::string& uuid : page.unreadable) {
        shown += "unreadable " + uuid + '\n';
    }
    return shown;
}

TEST(VisiblePage, HasHeadingAuthorAndHash) {
    const NamedCase cases[] = {
        {"all of them",
         "<script type='application/x-veloran-dbdump' book_hash='ab'>x</script><div "
         "class='bookmark bm-color-note'><h1>2026 - Emma</h1><span>J. A.</span></div>",
         "2026 - Emma|J. A.|ab\n"},
        {"other scripts", "<script type='text/x' book_hash='ab'></script>", "||\n"},
        {"no notes", "<h1>\n  Emma\n</h1>", "Emma||\n"},
        {"element in the heading", "<h1><b>Em</b>ma</h1>after", "Emma||\n"},
        {"heading and author of a note",
         "<h1>a</h1><div id=u class='bookmark bm-color-x'><h1>b</h1><span>c</span>",
         "a||\nu||x||||\n"},
        {"empty", "", "||\n"},
    };
    expectEach(cases, shownPage);
}

TEST(VisiblePage, NoteIsReadAsItIsShown) {
    const NamedCase cases[] = {
        {"everything",
         "<p class='bm-page'>5</p><div class='bm-text'><p>a</p></div><img "
         "src='data:image/jpeg;base64,eHk='><div class='bm-note'><p>b</p></div>",
         "||\nu|5|red|a|b|xy|\n"},
        {"breaks", "<div class='bm-text'><p>a<br>b<br/></p><p></p><p>c</p></div>",
         "||\nu||red|a\nb\n\u2029\u2029c|||\n"},
        {"indented again",
         "<div class='bm-text'>\n  <p>\n    a\r\n   b \n <br/>\n c\n</p>\n  </div>\n",
         "||\nu||red|a b\nc|||\n"},
        {"spaces of its own", "<div class='bm-text'><p> a\t  b\r</p></div>",
         "||\nu||red| a\t  b\r|||\n"},
        {"elements in the text", "<div class='bm-text'><p>a<i>b</i></p>x</div>y",
         "||\nu||red|ab|||\n"},
        {"paragraph that does not end", "<div class='bm-text'><p>a<p>b",
         "||\nu||red|a\u2029b|||\n"},
        {"page that is not a number", "<p class='bm-page'>XI</p>", "||\nu||red||||\n"},
        {"page before zero", "<p class='bm-page'>\n-2\n</p>", "||\nu|-2|red||||\n"},
        {"damaged picture", "<img src='data:image/jpeg;base64,e'>",
         "||\nu||red||||\nunreadable u\n"},
        {"linked picture", "<img src='a.jpg'>", "||\nu||red||||\nunreadable u\n"},
        {"next note", "<div id='v' class='bookmark bm-color-note'>",
         "||\nu||red||||\nv||||||\n"},
        {"unknown elements", "<div class='x'><p>a</p></div><p>b</p>", "||\nu||red||||\n"},
    };
    expectEach(cases, [](const std::string& content) {
        return shownPage("<div id='u' class='bookmark bm-color-red'>" + content);
    });
}

// Pieces of markup and white space.
constexpr std::string_view kPieces[] = {
    " ", "  ", "\t", "\r", "\n", "\u2028", "\u2029", "<p>", "</div>", "<br/>", "&amp;",
    "&", "\"", "'",  "a",  "漢", "\1",     "--",     "]]>", "<!--",   "<",     "\xFF"};

constexpr char kOddLine[] = "a \t  b\r\u2028\u2029<p></span>&amp;&\"'\1]]><!-- 漢\xFF";

std::string oddText(std::mt19937& random) {
    std::string text;
    for (auto left = random() % 9; left > 0; --left) {
        text += kPieces[random() % std::size(kPieces)];
    }
    return text;
}

client::Note oddNote(std::mt19937& random, int number) {
    client::Note note;
    note.uuid = 'u' + std::to_string(number) + oddText(random);
    note.place.page = number;
    note.color = 'c' + oddText(random);
    note.text = oddText(random);
    note.comment = oddText(random);
    note.picture = number % 3 == 0 ? "\xFF\xD8" + oddText(random) : "";
    return note;
}

// A page shows a line separator as it shows a line feed.
client::Note asShown(client::Note note) {
    note.text = client::replaced(note.text, "\u2028", "\n");
    note.comment = client::replaced(note.comment, "\u2028", "\n");
    return note;
}

TEST(VisiblePage, GivesBackTheNotesOfItsExport) {
    const ScratchDirectory scratch;
    std::mt19937 random(1);
    const client::Book book{"ab", std::string("T") + kOddLine, std::string(kOddLine) + 'Z',
                            ""};
    std::vector<client::Note> notes;
    for (int number = 0; number < 1000; ++number) {
        notes.push_back(oddNote(random, number));
    }
    addBook(book, notes);
    const CExporter exporter("ab", "pages");
    const std::string file = exporter.fileName();
    ASSERT_EQ(exporter.exportNotes(), 0);
    const client::VisiblePage page = readVisiblePage(readFile(file));
    EXPECT_EQ(page.heading.substr(22), book.title);
    EXPECT_EQ(page.author, book.author);
    ASSERT_EQ(page.notes.size(), notes.size());
    for (std::size_t i = 0; i < notes.size(); ++i) {
        EXPECT_EQ(show(page.notes[i]), show(asShown(notes[i])));
    }
}

}  // namespace
