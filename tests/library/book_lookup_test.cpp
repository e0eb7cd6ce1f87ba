#include "device_test.h"

namespace {

using BookLookup = DeviceTest;
using scripted::LibraryBook;
using veloran::NotesExporterImpl;

// How many platform calls each step of the chain takes.
constexpr std::size_t kId = 3;
constexpr std::size_t kTitle = 2;
constexpr std::size_t kPath = 3;  // with the file's name
constexpr std::size_t kReader = 4;
constexpr std::size_t kName = 1;

struct Lookup {
    long long libraryId;  // negative for none
    LibraryBook libraryBook;
    std::vector<LibraryBook> readerBooks;
    std::string title;
    std::size_t calls;
};

const Lookup kLookups[] = {
    {0, {" D<e\n", "", "/x"}, {{"Other", ""}}, " D<e\n", kId + kTitle},
    {0, {"", "", "/Books/a.epub"}, {{"Other", ""}}, "a.epub", kId + kTitle + kPath},
    {7, {"", "Ann", "/x/y/"}, {{"Other", ""}}, "Other", kId + kTitle + kPath + kReader},
    {7, {"", "Ann"}, {}, "", kId + kTitle + kPath + kReader},
    {-2, {"Not", "this"}, {{" D\n", "", "/x"}, {"2nd", ""}}, " D\n", kId + kReader},
    {-7, {"Not", "this"}, {{"", "", "/x/a.epub"}}, "a.epub", kId + kReader + kName},
    {-1, {}, {{"", "", "/Books/Dune/"}}, "Dune", kId + kReader + kName},
    {-1, {}, {{"", "", "Books\\Dune\\/\\"}}, "Books\\Dune", kId + kReader + kName},
    {-1, {}, {{"", "", "//"}}, "", kId + kReader + kName},
    {-1, {}, {{"", ""}, {"Second", ""}}, "", kId + kReader},
    {-1, {}, {}, "", kId + kReader},
};

void load(const Lookup& lookup) {
    script() = {};
    script().libraryIds[kUid] = lookup.libraryId;
    script().libraryBooks[lookup.libraryId] = lookup.libraryBook;
    for (const LibraryBook& each : lookup.readerBooks) {
        veloran::utilities::Book& book = script().readerBooks[kBook].emplace_back();
        book.title = each.title;
        book.path = each.path;
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
                  isKnown ? lookup.libraryBook.author : "");
        EXPECT_EQ(script().calls.size(), isKnown ? kId + kTitle : kId);
    }
}

}  // namespace
