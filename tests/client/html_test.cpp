// HTML as people's pages hold it: tags, references, encodings.
#include <gtest/gtest.h>

#include <string>

#include "cases.h"
#include "client/sources/exported_page/character_references.h"
#include "client/sources/exported_page/encoding.h"
#include "client/sources/exported_page/html_tokens.h"

namespace {

using namespace std::string_literals;

std::string shownTag(const client::HtmlToken& token) {
    std::string shown = '[' + token.text;
    for (const auto& [name, value] : token.attributes) {
        shown += ' ' + name + '=' + token.attribute(name);
    }
    return shown + ']';
}

std::string shownTokens(const std::string& html) {
    using Kind = client::HtmlToken::Kind;
    client::HtmlTokens tokens(html);
    std::string shown;
    for (client::HtmlToken token; tokens.next(token);) {
        shown += token.kind == Kind::Text  ? '{' + token.text + '}'
                 : token.kind == Kind::End ? "[/" + token.text + ']'
                                           : shownTag(token);
    }
    return shown;
}

TEST(HtmlTokens, AreFoundInAnyText) {
    const NamedCase cases[] = {
        {"tags and text", "<p>a <B>b</b></P >", "[p]{a }[b]{b}[/b][/p]"},
        {"attributes", "<a x=1 Y='2 \"' z=\"'3\" n>", "[a x=1 y=2 \" z='3 n=]"},
        {"spaces around the equals sign", "<a x =\n1 y= '2'>", "[a x=1 y=2]"},
        {"empty element", "<br/><img src=a/b />", "[br][img src=a/b]"},
        {"references", "<a b='&lt;&#65;'>&amp;lt;", "[a b=<A]{&lt;}"},
        {"the first of two attributes counts", "<a x=1 x=2>", "[a x=1 x=1]"},
        {"equals sign without a name", "<a =1>", "[a =1=]"},
        {"tag that does not end", "<a b='c>d", "[a b=c>d]"},
        {"name that does not end", "<a", "[a]"},
        {"attribute without a value at the end", "<a b=", "[a b=]"},
        {"less-than sign", "1 < 2 <3 </ a><", "{1 < 2 <3 </ a><}"},
        {"comment", "a<!-- <b> > -->c<!--", "{a}{c}"},
        {"declarations", "<?xml a='b'?><!DOCTYPE html>a", "{a}"},
        {"script", "<script>if (a</b) '<p>'</SCRIPT >c", "[script]{c}"},
        {"style sheet that does not end", "<style>p {}</p>", "[style]"},
    };
    expectEach(cases, shownTokens);
}

TEST(CharacterReferences, BecomeTheirCharacters) {
    const Case cases[] = {
        {"&lt;&gt;&amp;&quot;&apos;", "<>&\"'"},
        {"&nbsp;&eacute;&rarr;", "\u00A0é→"},
        {"&#65;&#x42;&#X1f40b;", "AB\U0001F40B"},
        {"&amp;amp;", "&amp;"},
        {"&&lt;&", "&<&"},
        {"&lt", "&lt"},
        {"a & b; c", "a & b; c"},
        {"&;&#;&#x;&#-1;&#6 5;", "&;&#;&#x;&#-1;&#6 5;"},
        {"&unknown;&LT;", "&unknown;&LT;"},
        {"&#0;&#xD800;&#x110000;&#99999999999;", "&#0;&#xD800;&#x110000;&#99999999999;"},
        {"&#x10FFFF;", "\U0010FFFF"},
    };
    expectEach(cases, client::withoutReferences);
    const std::string longName = '&' + std::string(31, '0') + "65;";
    EXPECT_EQ(client::withoutReferences(longName), longName);
}

TEST(HtmlEncoding, BecomesUtf8) {
    const NamedCase cases[] = {
        {"byte order mark", "\uFEFF<p>ä", "<p>ä"},
        {"UTF-16, little-endian", "\xFF\xFE<\0\xE4\0\xAC\x20"s, "<ä€"},
        {"UTF-16, big-endian", "\xFE\xFF\0<\0\xE4\x20\xAC"s, "<ä€"},
        {"cut UTF-16", "\xFF\xFE<\0\xE4"s, "<\uFFFD"},
        {"half a pair in UTF-16", "\xFF\xFE\x3D\xD8<\0"s, "\uFFFD<"},
        {"named in a meta element", "<meta charset=\"iso-8859-1\">\xE4",
         "<meta charset=\"iso-8859-1\">ä"},
        {"named in its content", "<meta content='a; charset=windows-1252'>\x80",
         "<meta content='a; charset=windows-1252'>€"},
        {"named in the XML declaration", "<?xml encoding='koi8-r'?>\xC1",
         "<?xml encoding='koi8-r'?>а"},
        {"named without quotes", "<meta charset=latin1>\xE4", "<meta charset=latin1>ä"},
        {"name that is wrong", "<meta charset=latin1>ä", "<meta charset=latin1>ä"},
        {"name that nobody knows", "<meta charset=x-none>\xE4",
         "<meta charset=x-none>\xE4"},
        {"text that is not of the encoding", "<meta charset=utf-8>\xE4-ä",
         "<meta charset=utf-8>\uFFFD-ä"},
        {"no name", "<p>\xE4", "<p>\xE4"},
        {"name that does not begin", "\xE4 charset=\"", "\xE4 charset=\""},
        {"empty", "", ""},
    };
    expectEach(cases, client::htmlAsUtf8);
}

}  // namespace
