#include <cstdlib>
#include <ctime>
#include <locale>

#include "device_test.h"

namespace {

using ExportedDocument = DeviceTest;

TEST_F(ExportedDocument, IsCompleteBeforeItIsHashed) {
    loadSampleBook();
    std::string hashed;
    script().onCall = [&](const std::string& call) {
        hashed = startsWith(call, "FastBookHash") ? readFile(kFile) : hashed;
    };
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(withoutDates(hashed), golden("full_export.html"));
    EXPECT_EQ(readFile(kFile), hashed);
}

std::string dateAhead(int minutes) {
    const std::time_t time = std::time(nullptr) + minutes * 60;
    char text[20];
    std::strftime(text, sizeof text, "%F %T", std::gmtime(&time));
    return text;
}

TEST_F(ExportedDocument, IsDatedInLocalTime) {
    loadSampleBook();
    const std::pair<const char*, int> zones[] = {
        {"UTC0", 0}, {"EAST-13:45", 13 * 60 + 45}, {"WEST9:30", -9 * 60 - 30}};
    for (const auto& [zone, minutesAhead] : zones) {
        setenv("TZ", zone, 1);
        std::filesystem::remove(kFile);
        const std::string before = dateAhead(minutesAhead);
        Exporter().exportAll();
        const std::string document = readFile(kFile);
        const std::string date = document.substr(document.find("<title>") + 7, 19);
        EXPECT_TRUE(before <= date && date <= dateAhead(minutesAhead)) << zone << date;
    }
}

struct GroupedDigits : std::numpunct<char> {
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\1"; }
};

// A conversion of bytes, as a global locale may add to every file.
struct ConvertedBytes : std::codecvt<char, char, std::mbstate_t> {
    bool do_always_noconv() const noexcept override { return false; }
    result do_out(std::mbstate_t& /*state*/, const char* from, const char* fromEnd,
                  const char*& fromNext, char* to, char* toEnd,
                  char*& toNext) const override {
        for (; from != fromEnd && to != toEnd; ++from) {
            *to++ = static_cast<char>(*from ^ 1);
        }
        fromNext = from;
        toNext = to;
        return from == fromEnd ? ok : partial;
    }
    result do_in(std::mbstate_t& state, const char* from, const char* fromEnd,
                 const char*& fromNext, char* to, char* toEnd,
                 char*& toNext) const override {
        return do_out(state, from, fromEnd, fromNext, to, toEnd, toNext);
    }
};

TEST_F(ExportedDocument, IsTheSameInEveryLocale) {
    loadSampleBook();
    for (int number = 0; number <= 10; number++) {
        const std::string counter = number == 0 ? "" : " (" + std::to_string(number) + ")";
        writeFile("Notes/Dune  Sons" + counter + ".html", "");
    }
    std::locale::global(std::locale(std::locale(std::locale::classic(), new GroupedDigits),
                                    new ConvertedBytes));
    Exporter().exportAll();
    std::locale::global(std::locale::classic());
    EXPECT_EQ(withoutDates(readFile("Notes/Dune  Sons (11).html")),
              golden("full_export.html"));
}

// Returns the text without the part from `from` to the end of `to`.
std::string without(std::string text, const std::string& from, const std::string& to) {
    const std::size_t start = text.find(from);
    return text.erase(start, text.find(to, start) + to.size() - start);
}

TEST_F(ExportedDocument, OmitsMissingParts) {
    const std::string author = "\n    <div class=\"bookmark bm-color-note\">\n      <span>";
    const struct {
        const char* name;
        void (*remove)();
        std::string from, to;  // the ends of the omitted part
    } rows[] = {
        {"author", [] { script().booksOfLibrary[kLibraryId].author = ""; }, author,
         "</div>"},
        {"payload", [] { script().payload = ""; }, "\n    <script", "</script>"},
        {"export", [] { script().exportSucceeds = false; }, "\n    <script", "</script>"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        script() = {};
        std::filesystem::remove_all("Notes");
        loadSampleBook();
        row.remove();
        EXPECT_EQ(Exporter().exportAll(), 0);
        EXPECT_EQ(withoutDates(readFile(kFile)),
                  without(golden("full_export.html"), row.from, row.to));
    }
}

// Returns the document's text after `from`, up to `to`.
std::string between(const std::string& from, const std::string& to) {
    const std::string document = readFile(kFile);
    const std::size_t start = document.find(from) + from.size();
    return document.substr(start, document.find(to, start) - start);
}

TEST_F(ExportedDocument, DumpIsBrokenIntoLines) {
    const std::string line(72, 'a');
    const struct {
        const char* name;
        std::string base64;
        std::string lines;
    } rows[] = {
        {"empty", "", ""},
        {"a line", line, line},
        {"a line and more", line + "b", line + "\nb"},
        {"two lines", line + line, line + "\n" + line},
        {"zero bytes", line.substr(2) + std::string("b\0cd\0e", 6),
         line.substr(2) + "b\ncd"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::filesystem::remove_all("Notes");
        loadSampleBook();
        script().base64 = row.base64;
        EXPECT_EQ(Exporter().exportAll(), 0);
        EXPECT_EQ(between("book_hash=\"626F6F6B\">", "\n  </head>\n"),
                  row.lines + "</script>");
    }
}

TEST_F(ExportedDocument, EmptyPictureElementIsClosed) {
    loadSampleBook();
    script().base64 = "";
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(between("<div class=\"bm-image\">", "\n    </div>"),
              "\n        <img src=\"data:image/jpeg;base64,\"></img>\n      </div>");
}

TEST_F(ExportedDocument, DumpTypePrecedesHashLookup) {
    loadSampleBook();
    script().itemIds[kBook] = -2;
    script().onCall = [](const std::string& call) {
        call == "ReaderDbManager::getBookFastHashById(-2)" ? throw 42 : 0;
    };
    EXPECT_THROW(Exporter().exportAll(), int);
    const std::string document = readFile(kFile);
    EXPECT_EQ(document.substr(document.rfind('<')),
              "<script type=\"application/x-veloran-dbdump\"");
    EXPECT_NE(joined(script().calls).find("books_export(, {18446744073709551614})"),
              std::string::npos);
}

constexpr char kPath[] = NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css";

// Returns the content of the document's style element.
std::string exportedStyle() {
    std::filesystem::remove_all("Notes");
    EXPECT_EQ(Exporter().exportAll(), 0);
    return between("  <style type=\"text/css\">", "</style>\n");
}

TEST_F(ExportedDocument, StyleSheetIsCopiedUnescapedOrLeftEmpty) {
    loadSampleBook();
    const std::string opening = "<!--/*--><![CDATA[/*><!--*/\n", closing = "\n/*]]>*/-->";
    for (const std::size_t size : {0U, 1U, 1023U, 1024U, 1025U, 2048U, 2500U}) {
        SCOPED_TRACE(size);
        std::string sheet;
        while (sheet.size() < size) {
            sheet += "a > b { content: \"<&'\" }\r\n\xCE\xB1\xFF";
        }
        sheet.resize(size);
        writeFile(kPath, sheet);
        EXPECT_EQ(exportedStyle(), opening + sheet + closing);
    }
    writeFile(kPath, std::string("cut\0 here", 9));
    EXPECT_EQ(exportedStyle(), opening + "cut" + closing);
    std::filesystem::remove(kPath);
    EXPECT_EQ(exportedStyle(), opening + closing);
    std::filesystem::create_directories(kPath);
    EXPECT_EQ(exportedStyle(), opening + closing);
}

}  // namespace
