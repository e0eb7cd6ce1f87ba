// Lists of books and notes, in every format.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "cases.h"
#include "client/listings/csv_cell.h"
#include "client/listings/listing.h"
#include "client/listings/markdown_text.h"

namespace {

TEST(CsvCell, IsTextAndNoFormula) {
    const NamedCase cases[] = {
        {"plain text", "a 'b' 1+1", "a 'b' 1+1"},
        {"separators", "a,b", "\"a,b\""},
        {"separators of other readers", "a;b\tc", "\"a;b\tc\""},
        {"quotes", "\"a\"", "\"\"\"a\"\"\""},
        {"line breaks", "a\r\nb\rc\u2028d\u2029e", "\"a\nb\nc\nd\ne\""},
        {"controls", "a\x1B\x7F\u0085b", "a   b"},
        {"marks of direction", "a\u202Eb", "a\u202Eb"},
        {"spaces at the ends", " a", "\" a\""},
        {"formulas", "=1", "'=1"},
        {"formula behind spaces and apostrophes", " '+1", "' '+1"},
        {"apostrophe alone", "'a", "'a"},
        {"tab first", "\ta", "\"'\ta\""},
        {"full-width formula", "＠a", "'＠a"},
        {"byte that is not UTF-8", "-\xFF", "'-\uFFFD"},
        {"empty", "", ""},
    };
    expectEach(cases, client::csvCell);
}

TEST(MarkdownText, EscapesWhatRenderersAddToCommonMark) {
    const Case cases[] = {
        {"a==b== %%c%%", "a=\\=b=\\= %\\%c%\\%"},         {"- =a= 50%", "\\- =a= 50%"},
        {":a: #b $c$ ~d~", "\\:a: \\#b \\$c\\$ \\~d\\~"}, {"1984. 2) 3.", "1984\\. 2) 3."},
        {"http://a.b www.c", "http\\://a.b www\\.c"},     {" a\nb ", "&#32;a b&#32;"},
    };
    expectEach(cases, client::markdownLine);
}

std::string listedNotes(const client::ListingFormat& format, bool severalBooks) {
    client::Note note;
    note.id = 7;
    note.uuid = "u\"";
    note.page = 5.5;
    note.color = "red";
    note.text = "=a\nb\u2029c";
    note.comment = "- d";
    note.picture = "jpeg";
    note.time = 1772841600;
    std::ostringstream out;
    const auto notes = format.listNotes(out, {severalBooks, {}});
    notes->startBook({"ab", "T\\ \"\n", severalBooks ? "" : "A_", ""});
    notes->add(note);
    notes->add({});
    notes->end();
    return out.str();
}

std::string listedBooks(const client::ListingFormat& format) {
    std::ostringstream out;
    const auto books = format.listBooks(out);
    books->add({"ab", "=T*", "A,\x1B", "/p"});
    books->add({"cd", "", "", ""});
    books->end();
    return out.str();
}

TEST(Listing, WritesWholeListInEachFormat) {
    const struct {
        const client::ListingFormat& format;
        std::string books;
        bool severalBooks;
        std::string notes;
    } rows[] = {
        {client::kLineFormat, "ab\t=T*\tA, \ncd\t\t\n", true,
         "ab\t7\t5.5\tred\t=a b c\nab\t0\t\t\t\n"},
        {client::kJsonFormat,
         R"([{"hash":"ab","title":"=T*","author":"A,\u001B","path":"/p"},)"
         R"({"hash":"cd","title":"","author":"","path":""}])"
         "\n",
         true,
         R"([{"book":"ab","id":7,"uuid":"u\"","page":5.5,"color":"red","text":"=a\nb)"
         "\u2029"
         R"(c","comment":"- d","image_size":4,"timestamp":1772841600},)"
         R"({"book":"ab","id":0,"uuid":"","page":null,"color":"","text":"","comment":"",)"
         R"("image_size":0,"timestamp":0}])"
         "\n"},
        {client::kCsvFormat,
         "\uFEFFhash,title,author,path\r\nab,'=T*,\"A, \",/p\r\ncd,,,\r\n", false,
         "\uFEFFbook,author,page,colour,text,comment,time,uuid\r\n"
         "\"T\\ \"\"\n\",A_,5.5,red,\"'=a\nb\nc\",'- d,2026-03-07T00:00:00Z,\"u\"\"\"\r\n"
         "\"T\\ \"\"\n\",A_,,,,,,\r\n"},
        {client::kMarkdownFormat, "- \\=T\\*, A,&#32; (ab)\n- cd (cd)\n", false,
         "---\ntitle: \"T\\\\ \\\" \"\nauthor: \"A_\"\nhash: \"ab\"\n---\n\n"
         "# T\\\\ \"&#32;\n\nA\\_\n\n> \\=a\\\n> b\n>\n> c\n\n\\- d\n\n"
         "— page 5.5, red, picture, 2026-03-07T00:00:00Z\n\n—\n"},
        {client::kMarkdownFormat, "- \\=T\\*, A,&#32; (ab)\n- cd (cd)\n", true,
         "# T\\\\ \"&#32;\n\nab\n\n> \\=a\\\n> b\n>\n> c\n\n\\- d\n\n"
         "— page 5.5, red, picture, 2026-03-07T00:00:00Z\n\n—\n"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(listedBooks(row.format), row.books) << row.format.name;
        EXPECT_EQ(listedNotes(row.format, row.severalBooks), row.notes) << row.format.name;
    }
}

}  // namespace
