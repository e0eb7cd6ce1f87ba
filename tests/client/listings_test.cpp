// Text of notes in spreadsheets and in Markdown.
#include <gtest/gtest.h>

#include <string>

#include "cases.h"
#include "client/listings/csv_cell.h"
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

}  // namespace
