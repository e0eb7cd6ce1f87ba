#include <cstdlib>
#include <ctime>
#include <locale>

#include "device_test.h"

namespace library_tests {
namespace {

using Document = DeviceTest;

TEST_F(Document, IsOnDiskAsAWholeWhenItsHashIsComputed) {
    loadSampleBook();
    std::string hashed;
    script().onCall = [&](const std::string& call) {
        hashed = startsWith(call, "FastBookHash") ? readFile(kFile) : hashed;
    };
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(withoutDate(hashed), golden("full_export.html"));
    EXPECT_EQ(readFile(kFile), hashed);
}

TEST_F(Document, LeavesOutDumpAuthorAndNotesThatAreNotThere) {
    loadSampleBook();
    script().payload = "";
    script().libraryBooks[kLibraryId].author = "";
    script().noteKeys.clear();
    std::string expected = golden("full_export.html");
    const auto leaveOut = [&expected](const char* from, const char* to) {
        const auto start = expected.find(from);
        expected.erase(start, expected.find(to, start) - start);
    };
    leaveOut("\n    <script", "\n  </head>");
    leaveOut("<div class=\"bookmark bm-color-note\">\n      <span>", "<div id=");
    leaveOut("\n    <div id=", "\n  </body>");
    EXPECT_EQ(Exporter().exportAll(), 0);
    EXPECT_EQ(withoutDate(readFile(kFile)), expected);
}

TEST_F(Document, IsDatedInLocalTime) {
    loadSampleBook();
    for (const char* zone : {"UTC0", "EAST-13:45", "WEST9:30"}) {
        setenv("TZ", zone, 1);
        std::filesystem::remove(kFile);
        const std::time_t before = std::time(nullptr);
        Exporter().exportAll();
        const std::string document = readFile(kFile);
        const std::string title = document.substr(document.find("<title>"));
        std::tm local = {};
        local.tm_isdst = -1;
        strptime(title.c_str(), "<title>%Y-%m-%d %H:%M:%S - ", &local);
        EXPECT_GE(std::mktime(&local), before) << zone;
        EXPECT_LE(std::mktime(&local), std::time(nullptr)) << zone;
    }
}

TEST_F(Document, TakesEveryItemIdentifierButMinusOneForKnown) {
    for (const long long item : {-2LL, 0LL}) {
        script().itemIds[kBook] = item;
        EXPECT_EQ(Exporter().exportAll(), 0);
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
    EXPECT_EQ(withoutDate(readFile("Notes/Dune  Sons (11).html")),
              golden("full_export.html"));
}

}  // namespace
}  // namespace library_tests
