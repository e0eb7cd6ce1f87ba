#include "device_test.h"

namespace {

using BookLookup = DeviceTest;
using scripted::LibraryBook;
using veloran::NotesExporterImpl;

struct Lookup {
    long long idByUid;  // negative for none
    LibraryBook bookOfId;
    std::vector<LibraryBook> readerBooks;
    std::string title;
    std::size_t calls;  // of the platform
};

const Lookup kLookups[] = {
    {0, {" D<e\n", "", "/x"}, {{"Other", ""}}, " D<e\n", 5},
    {0, {"", "", "/Books/a.epub"}, {{"Other", ""}}, "a.epub", 8},
    {7, {"", "Ann", "/x/y/"}, {{"Other", ""}}, "Other", 12},
    {7, {"", "Ann"}, {}, "", 12},
    {-2, {"Not", "this"}, {{" D\n", "", "/x"}, {"2nd", ""}}, " D\n", 7},
    {-7, {"Not", "this"}, {{"", "", "/x/a.epub"}}, "a.epub", 8},
    {-1, {}, {{"", "", "/Books/Dune/"}}, "Dune", 8},
    {-1, {}, {{"", "", "Books\\Dune\\/\\"}}, "Books\\Dune", 8},
    {-1, {}, {{"", "", "//"}}, "", 8},
    {-1, {}, {{"", ""}, {"Second", ""}}, "", 7},
    {-1, {}, {}, "", 7},
};

void load(const Lookup& lookup) {
    script() = {};
    script().bookIdsByUid[kUid] = lookup.idByUid;
    script().booksOfLibrary[lookup.idByUid] = lookup.bookOfId;
    for (const LibraryBook& each : lookup.readerBooks) {
        veloran::utilities::Book& book = script().readerBooks[kBook].emplace_back();
        book.title = each.title;
        book.path = each.path;
    }
}

TEST_F(BookLookup, TitleComesFromTheFirstSourceThatHasOne) {
    for (const Lookup& lookup : kLookups) {
        SCOPED_TRACE("lookup " + std::to_string(&lookup - kLookups));
        load(lookup);
        EXPECT_EQ(NotesExporterImpl::getBookTitle(kBook), lookup.title);
        EXPECT_EQ(script().calls.size(), lookup.calls) << joined(script().calls);

        script().calls.clear();
        const bool isKnown = lookup.idByUid >= 0;
        EXPECT_EQ(NotesExporterImpl::getBookAuthorFromExplorerDB(kBook),
                  isKnown ? lookup.bookOfId.author : "");
        EXPECT_EQ(script().calls.size(), isKnown ? 5U : 3U);
    }
}

}  // namespace
