#include "device_test.h"

namespace library_tests {
namespace {

using BookLookup = DeviceTest;
using FileName = DeviceTest;
using veloran::NotesExporterImpl;
using TitleAndPath = std::pair<std::string, std::string>;

// How many platform calls each step of the chain takes.
constexpr std::size_t kId = 3;
constexpr std::size_t kTitle = 2;
constexpr std::size_t kPath = 3;  // with the file's name
constexpr std::size_t kReader = 4;
constexpr std::size_t kName = 1;

struct Lookup {
    long long libraryId;  // negative for none
    TitleAndPath libraryBook;
    std::vector<TitleAndPath> readerBooks;
    std::string title;
    std::size_t calls;
};

const Lookup kLookups[] = {
    {0, {" Du<ne\n", ""}, {{"Other", ""}}, " Du<ne\n", kId + kTitle},
    {0, {"", "/Books/a.epub"}, {{"Other", ""}}, "a.epub", kId + kTitle + kPath},
    {7, {"", "/Books/Dune/"}, {{"Other", ""}}, "Other", kId + kTitle + kPath + kReader},
    {7, {"", ""}, {}, "", kId + kTitle + kPath + kReader},
    {-2, {"Not", "/this"}, {{" D\n", "/x"}, {"Second", "/x"}}, " D\n", kId + kReader},
    {-7, {"Not", "/this"}, {{"", "/Books/a.epub"}}, "a.epub", kId + kReader + kName},
    {-1, {}, {{"", "/Books/Dune/"}}, "Dune", kId + kReader + kName},
    {-1, {}, {{"", "Books\\Dune\\/\\"}}, "Books\\Dune", kId + kReader + kName},
    {-1, {}, {{"", "//"}}, "", kId + kReader + kName},
    {-1, {}, {{"", ""}, {"Second", "/x"}}, "", kId + kReader},
    {-1, {}, {}, "", kId + kReader},
};

void load(const Lookup& lookup) {
    script() = {};
    script().libraryIds[kUid] = lookup.libraryId;
    script().libraryBooks[lookup.libraryId] = {lookup.libraryBook.first, "Frank",
                                               lookup.libraryBook.second};
    for (const auto& [title, path] : lookup.readerBooks) {
        veloran::utilities::Book book;
        book.title = title;
        book.path = path;
        script().readerBooks[kBook].push_back(book);
    }
}

TEST_F(BookLookup, FollowsTheChainForTheTitleAndAsksTheLibraryForTheAuthor) {
    for (const Lookup& lookup : kLookups) {
        load(lookup);
        EXPECT_EQ(NotesExporterImpl::getBookTitle(kBook), lookup.title);
        EXPECT_EQ(script().calls.size(), lookup.calls) << joined(script().calls);

        script().calls.clear();
        const bool isKnown = lookup.libraryId >= 0;
        EXPECT_EQ(NotesExporterImpl::getBookAuthorFromExplorerDB(kBook),
                  isKnown ? "Frank" : "");
        EXPECT_EQ(script().calls.size(), isKnown ? kId + kTitle : kId);
    }
}

std::string fileNameOf(const std::string& title, const std::string& directory = "Notes",
                       const std::string& bookHash = kBook) {
    script().libraryIds[kUid] = kLibraryId;
    script().libraryBooks[kLibraryId] = {title, ""};
    Exporter exporter;
    exporter.setExportDir(directory);
    return exporter.getExportFilename(bookHash);
}

TEST_F(FileName, KeepsLettersDigitsSpacesAndFourPunctuationMarks) {
    const std::string kept = " -._\\0123456789";
    for (int code = 0; code < 256; code++) {
        const std::string byte(1, static_cast<char>(code));
        const bool isLetter = (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
        const bool stays = code >= 0x80 || isLetter || kept.find(byte) != std::string::npos;
        EXPECT_EQ(fileNameOf("a" + byte + "z"), "Notes/a" + (stays ? byte : "") + "z.html")
            << "byte " << code;
    }
    EXPECT_FALSE(std::filesystem::exists("Notes")) << "a query creates nothing";
}

TEST_F(FileName, IsTheTitleWithoutUnsafeBytesElseTheHashInTheDirectoryAsItStands) {
    struct {
        std::string title;
        std::string directory;
        std::string hash;
        std::string path;
    } const cases[] = {
        {"What? (2nd ed.)", "Notes", kBook, "Notes/What 2nd ed..html"},
        {"  .Dune.  ", "Notes/", kBook, "Notes//  .Dune.  .html"},
        {std::string(300, 'x'), "", kBook, "/" + std::string(300, 'x') + ".html"},
        {"\n???\x7f", "../a b/.", kBook, "../a b/./" + kBook + ".html"},
        {"", "Notes", kBook, "Notes/" + kBook + ".html"},
        {" ", "Notes", kBook, "Notes/ .html"},
        {"Title of another book", "Notes", "a?b", "Notes/a?b.html"},
        {"Title of another book", "Notes", "", "Notes/.html"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(fileNameOf(each.title, each.directory, each.hash), each.path);
    }
    EXPECT_EQ(veloran::NotesExporterImpl().getExportFilename(""),
              NOTES_EXPORT_DEVICE_ROOT "/Notes/.html");
}

TEST_F(FileName, CountsUpToTheFirstFreeName) {
    const std::pair<std::vector<const char*>, const char*> cases[] = {
        {{" (1)"}, "Notes/Dune.html"},
        {{""}, "Notes/Dune (1).html"},
        {{"", " (1)"}, "Notes/Dune (2).html"},
        {{"", " (2)"}, "Notes/Dune (1).html"},
    };
    for (const auto& [taken, expected] : cases) {
        std::filesystem::remove_all("Notes");
        for (const std::string counter : taken) {
            writeFile("Notes/Dune" + counter + ".html", "");
        }
        EXPECT_EQ(fileNameOf("Dune"), expected);
    }
}

}  // namespace
}  // namespace library_tests
