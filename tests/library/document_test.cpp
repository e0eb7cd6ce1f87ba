#include <cstdlib>
#include <ctime>
#include <locale>

#include "device_test.h"

namespace {

using Document = DeviceTest;

TEST_F(Document, IsOnDiskAsAWholeWhenItsHashIsComputed) {
    loadSampleBook();
    std::string hashed;
    script().onCall = [&](const std::string& call) {
        hashed = startsWith(call, "FastBookHash") ? readFile(kFile) : hashed;
    };
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(withoutDates(hashed), golden("full_export.html"));
    EXPECT_EQ(readFile(kFile), hashed);
}

std::string localDate() {
    const std::time_t now = std::time(nullptr);
    char text[20];
    tzset();
    std::strftime(text, sizeof text, "%F %T", std::localtime(&now));
    return text;
}

TEST_F(Document, IsDatedInLocalTime) {
    loadSampleBook();
    for (const char* zone : {"UTC0", "EAST-13:45", "WEST9:30"}) {
        setenv("TZ", zone, 1);
        std::filesystem::remove(kFile);
        const std::string before = localDate();
        Exporter().exportAll();
        const std::string document = readFile(kFile);
        const std::string date = document.substr(document.find("<title>") + 7, 19);
        EXPECT_TRUE(before <= date && date <= localDate()) << zone << date;
    }
}

struct GroupedDigits : std::numpunct<char> {
    char do_thousands_sep() const override { return ','; }
    std::string do_grouping() const override { return "\1"; }
};

TEST_F(Document, AndItsNameAndLabelsAreTheSameInEveryLocale) {
    loadSampleBook();
    for (int number = 0; number <= 10; number++) {
        const std::string counter = number == 0 ? "" : " (" + std::to_string(number) + ")";
        writeFile("Notes/Dune  Sons" + counter + ".html", "");
    }
    std::locale::global(std::locale(std::locale::classic(), new GroupedDigits));
    Exporter().exportAll();
    std::locale::global(std::locale::classic());
    EXPECT_EQ(withoutDates(readFile("Notes/Dune  Sons (11).html")),
              golden("full_export.html"));
}

TEST_F(Document, LeavesOutTheDumpWhenTheEngineFails) {
    loadSampleBook();
    script().exportSucceeds = false;
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(readFile(kFile).find("<script"), std::string::npos);
}

TEST_F(Document, FetchesTheHashOfAnyItemOnceTheTypeOfItsDumpIsWritten) {
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

// The content of the exported document's style element.
std::string exportedStyle() {
    std::filesystem::remove_all("Notes");
    EXPECT_EQ(Exporter().exportAll(), 0);
    const std::string document = readFile(kFile), start = "  <style type=\"text/css\">";
    const std::size_t at = document.find(start) + start.size();
    return document.substr(at, document.find("</style>\n") - at);
}

TEST_F(Document, CopiesTheStyleSheetWholeAndUnescapedIfItCanBeRead) {
    loadSampleBook();
    const std::string opening = "<!--/*--><![CDATA[/*><!--*/\n", closing = "\n/*]]>*/-->";
    for (const std::size_t size : {0U, 1U, 1023U, 1024U, 1025U, 2048U, 2500U}) {
        std::string sheet;
        while (sheet.size() < size) {
            sheet += "a > b { content: \"<&'\" }\r\n\xCE\xB1\xFF";
        }
        sheet.resize(size);
        writeFile(kPath, sheet);
        EXPECT_EQ(exportedStyle(), opening + sheet + closing);
    }
    std::filesystem::remove(kPath);
    EXPECT_EQ(exportedStyle(), opening + closing);
    std::filesystem::create_directories(kPath);
    EXPECT_EQ(exportedStyle(), opening + closing);
}

}  // namespace
