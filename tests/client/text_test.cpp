// Texts, numbers and times, as the client reads, compares and writes them.
#include <gtest/gtest.h>

#include <string>

#include "cases.h"
#include "client/text/case_folding.h"
#include "client/text/control_characters.h"
#include "client/text/iso_time.h"
#include "client/text/percent_encoding.h"

namespace {

using namespace std::string_literals;

TEST(CaseFolding, MakesSpellingsOfOneTextEqual) {
    const struct {
        const char* name;
        std::string text;
        std::string folded;
        std::string foldedNfkc;
    } rows[] = {
        {"upper case", "ÄHRE Ω", "ähre ω", "ähre ω"},
        {"sharp s", "Straße", "strasse", "strasse"},
        {"final sigma", "ΟΔΟΣ οδος", "οδοσ οδοσ", "οδοσ οδοσ"},
        {"two characters for one", "A\u0308", "ä", "ä"},
        {"soft hyphen", "a\u00ADb", "ab", "ab"},
        {"full-width digits", "１２", "１２", "12"},
        {"Roman numeral", "Ⅻ", "ⅻ", "xii"},
        {"bytes that are not UTF-8", "A\xFF\xE2\x82", "a\uFFFD\uFFFD\uFFFD",
         "a\uFFFD\uFFFD\uFFFD"},
        {"zero byte", "A\0B"s, "a\0b"s, "a\0b"s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(client::caseFolded(row.text), row.folded) << row.name;
        EXPECT_EQ(client::caseFoldedNfkc(row.text), row.foldedNfkc) << row.name;
    }
}

TEST(ControlCharacters, BecomeSpacesInOneLine) {
    const NamedCase cases[] = {
        {"controls", "a\0\t\r\n\x1F\x7F"s, "a      "},
        {"controls of two bytes", "\u0080\u009B\u009F\u00A0", "   \u00A0"},
        {"separators", "\u2027\u2028\u2029", "\u2027  "},
        {"directions", "\u202A\u202E\u202F\u2066\u2069\u206A", "  \u202F  \u206A"},
        {"marks of direction", "\u061B\u061C\u200D\u200E\u200F\u2010",
         "\u061B \u200D  \u2010"},
        {"noncharacters", "\uFFFD\uFFFE\uFFFF", "\uFFFD  "},
        {"stray bytes", "a\xFF\x80z", "a\uFFFD\uFFFDz"},
        {"cut character", "\xE2\x82", "\uFFFD\uFFFD"},
        {"surrogate", "\xED\xA0\x80", "\uFFFD\uFFFD\uFFFD"},
        {"longer than needed", "\xC0\xAF", "\uFFFD\uFFFD"},
        {"other planes", "\U0001F40B", "\U0001F40B"},
    };
    expectEach(cases, client::oneLine);
}

std::string shownTime(const std::string& text) {
    const auto time = client::parseIsoTime(text);
    return time ? client::isoTime(*time) : "none";
}

TEST(IsoTime, IsReadWithDateTimeAndZone) {
    const Case cases[] = {
        {"2026-03-07", "2026-03-07T00:00:00Z"},
        {"2026-03-07T09:05", "2026-03-07T09:05:00Z"},
        {"2026-03-07 09:05:01", "2026-03-07T09:05:01Z"},
        {"2026-03-07t09:05:01.999z", "2026-03-07T09:05:01Z"},
        {"2026-03-07T09:05:01,5Z", "2026-03-07T09:05:01Z"},
        {"2026-03-07T00:30+01:00", "2026-03-06T23:30:00Z"},
        {"2026-03-07T00:30+0130", "2026-03-06T23:00:00Z"},
        {"2026-03-07T23:30-01", "2026-03-08T00:30:00Z"},
        {"2016-12-31T23:59:60Z", "2017-01-01T00:00:00Z"},
        {"2024-02-29", "2024-02-29T00:00:00Z"},
        {"2000-02-29", "2000-02-29T00:00:00Z"},
        {"0000-01-01", "0000-01-01T00:00:00Z"},
        {"9999-12-31T23:59:59Z", "9999-12-31T23:59:59Z"},
        {"1969-12-31T23:59:59Z", "1969-12-31T23:59:59Z"},
    };
    expectEach(cases, shownTime);
    EXPECT_EQ(client::parseIsoTime("2026-03-07T09:05Z"), 1772874300);
    EXPECT_EQ(shownTime(""), "none");
    std::istringstream faults(
        "2023-02-29 1900-02-29 2026-04-31 2026-00-07 2026-13-07 2026-03-00 26-03-07 "
        "2026-3-7 "
        "2026-03-07T 2026-03-07T09 2026-03-07T24:00 2026-03-07T09:60 2026-03-07T09:05:61 "
        "2026-03-07T09:05:01.Z 2026-03-07T09:05+1 2026-03-07T09:05+01: "
        "2026-03-07T09:05+01:60 2026-03-07T09:05Zx 2026-03-07Z");
    for (std::string text; faults >> text;) {
        EXPECT_EQ(shownTime(text), "none") << text;
    }
}

TEST(Link, EncodesWhatIsNotPlain) {
    const Case cases[] = {
        {"my pics/a-1._~.png", "my%20pics/a-1._~.png"},
        {"50%?#[1](2).png", "50%25%3F%23%5B1%5D%282%29.png"},
        {"Äh 白.png", "Äh%20白.png"},
        {"ä\xFF.png", "%C3%A4%FF.png"},
        {"ä\u202E.png", "%C3%A4%E2%80%AE.png"},
    };
    expectEach(cases, client::linkTo);
}

}  // namespace
