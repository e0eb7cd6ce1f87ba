// The formats that the seam leaves to the platform.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "dump/note_json.h"
#include "readerlib/position_uri.h"
#include "text/base64.h"
#include "text/utf8.h"
#include "utilities/note.h"

TEST(PositionUri, PageOrLocationComesFromQueryAlone) {
    const auto page = [](const std::string& uri) {
        double number = 0;
        const bool found = Veloran::ReaderLib::extractPageFromnURI(uri, number);
        return found ? std::optional(number) : std::nullopt;
    };
    EXPECT_EQ(page("book?page=12.5"), 12.5);
    EXPECT_EQ(page("?page=0"), 0);
    EXPECT_EQ(page("b?a=1&page=-2.25&page=9"), -2.25);
    EXPECT_EQ(page("b?page=007#page=8"), 7);
    EXPECT_EQ(page("b?x?page&page=3"), 3);
    EXPECT_EQ(page("b?location=170&page=5"), 5);
    EXPECT_EQ(page("b?location=170&chapter=page"), 170);
    EXPECT_EQ(page("b?page=xi&location=170"), 170);
    EXPECT_EQ(page("?page=" + std::string(400, '9')), std::nullopt);
    for (const char* uri :
         {"", "page=1", "b#?page=1", "b?page=", "b?page", "b?Page=1", "b?mypage=1",
          "b?page=1x", "b?page= 1", "b?page=+1", "b?page=0x1", "b?page=inf", "b?page=nan",
          "b?page=1,5", "b?location=x", "b?page=x&page=1", "b?page=1e5"}) {
        EXPECT_EQ(page(uri), std::nullopt) << uri;
    }
}

TEST(Base64, IgnoresWhiteSpaceAndRefusesInvalidText) {
    EXPECT_EQ(host::decodeBase64(""), "");
    EXPECT_EQ(host::decodeBase64(" Z m\r\n8\t= "), "fo");
    EXPECT_EQ(host::decodeBase64("Zm9vZg=="), "foof");
    for (const char* text : {"Z", "Zg", "Zg=", "Zm9vZ", "=", "====", "Z===", "Zg=g",
                             "Z=g=", "Zg==Zg==", "Zm9vZg==Zm9v", "Zm9-", "Zm9v----",
                             "Zm9\v", "Zm9\xff", "Zm9v=", "Zm9v\f"}) {
        EXPECT_EQ(host::decodeBase64(text), std::nullopt) << text;
    }
}

TEST(Utf8, InvalidSequenceIsFoundAtAnyPosition) {
    for (std::size_t before = 0; before < 17; ++before) {
        for (const char* after : {"", "12345678"}) {
            const auto isUtf8 = [&](const char* bytes) {
                return host::isUtf8(std::string(before, 'a') + bytes + after);
            };
            for (const char* bytes :
                 {"", "\x7f", "\xc3\xbc", "\xef\xbf\xbf", "\xf4\x8f\xbf\xbf"}) {
                EXPECT_TRUE(isUtf8(bytes)) << before << bytes << after;
            }
            for (const char* bytes : {"\x80", "\xc3", "\xc0\xaf", "\xe4\xb8",
                                      "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xff"}) {
                EXPECT_FALSE(isUtf8(bytes)) << before << bytes << after;
            }
        }
    }
}

TEST(JsonElement, IsEmptyUnlessObjectHoldsString) {
    using veloran::utilities::Note;
    const auto anchor = [](const std::string& json) {
        Note note;
        note.tags[Note::Tag::Anchor].json = host::NoteJson().parse(json);
        return note.getJsonTagElement(Note::Tag::Anchor, "anchor");
    };
    EXPECT_EQ(anchor(R"({"anchor":"\u00e9 &"})"), "\xc3\xa9 &");
    EXPECT_EQ(anchor(R"({"anchor":"a","anchor":"b"})"), "b");
    const std::string tooDeep = std::string(33, '[') + std::string(33, ']');
    EXPECT_EQ(anchor(R"({"anchor":"x","deep":)" + tooDeep + "}"), "");
    EXPECT_EQ(anchor(R"({"anchor":")" + std::string(5000, 'x') + "\"}"), "");
    EXPECT_EQ(anchor(R"({"anchor":"x"})" + std::string(1, '\0')), "");
    for (const char* json :
         {"", R"({"other":"x"})", R"({"anchor":1.5})", R"({"anchor":{"anchor":"x"}})",
          R"(["anchor"])", R"("anchor")", "{\"anchor\":\"\xff\"}",
          R"({"anchor":"x"} trailing)", R"({"anchor":"x")"}) {
        EXPECT_EQ(anchor(json), "") << json;
    }
}
