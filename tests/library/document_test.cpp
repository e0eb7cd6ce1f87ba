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

// Fails to convert any byte that a file stream reads or writes.
struct NoBytes : std::codecvt<char, char, std::mbstate_t> {
    bool do_always_noconv() const noexcept override { return false; }
    result do_out(std::mbstate_t&, const char*, const char*, const char*&, char*, char*,
                  char*&) const override {
        return error;
    }
    result do_in(std::mbstate_t&, const char*, const char*, const char*&, char*, char*,
                 char*&) const override {
        return error;
    }
};

struct NoDates : std::time_put<char> {
    iter_type do_put(iter_type out, std::ios_base&, char, const std::tm*, char,
                     char) const override {
        return out;
    }
};

TEST_F(Document, AndItsNameAreTheSameInEveryLocale) {
    loadSampleBook();
    writeFile(kFile, "");
    for (int number = 1; number <= 11; number++) {
        writeFile("Notes/Dune  Sons (" + std::to_string(number) + ").html", "");
    }
    const std::string expected = golden("full_export.html");
    const std::string path = "Notes/Dune  Sons (12).html";

    const std::locale grouped(std::locale::classic(), new GroupedDigits);
    const std::locale unreadable(grouped, new NoBytes);
    std::locale::global(std::locale(unreadable, new NoDates));
    Exporter().exportAll();
    EXPECT_EQ(readFile(path), "") << "the locale is not hostile";
    std::locale::global(std::locale::classic());
    EXPECT_EQ(withoutDate(readFile(path)), expected);
}

}  // namespace
}  // namespace library_tests
