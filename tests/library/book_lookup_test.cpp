#include <algorithm>

#include "device_test.h"

namespace {

using BookLookup = DeviceTest;
using scripted::LibraryBook;
using veloran::NotesExporterImpl;

struct ReaderBook {
    std::string title;
    std::string path;
};

// The content of the two databases, and the resulting title. The author is always that of
// the library database.
struct Lookup {
    const char* name;
    long long libraryId;  // negative if the library database does not know the book
    LibraryBook libraryBook;
    std::vector<ReaderBook> readerBooks;
    std::string title;
    bool opensReaderDatabase;
};

// Library books hold title, author and path; reader books hold title and path.
const Lookup kLookups[] = {
    {"library title", 0, {" D<e\n", "", "/x"}, {{"Other", ""}}, " D<e\n", false},
    {"library file", 0, {"", "", "/Books/a.epub"}, {{"Other", ""}}, "a.epub", false},
    {"library folder", 7, {"", "Ann", "/x/y/"}, {{"Other", ""}}, "Other", true},
    {"library author only", 7, {"", "Ann", ""}, {}, "", true},
    {"reader title", -2, {"Not", "this", ""}, {{" D\n", "/x"}, {"2nd", ""}}, " D\n", true},
    {"reader file", -7, {"Not", "this", ""}, {{"", "/x/a.epub"}}, "a.epub", true},
    {"reader folder", -1, {}, {{"", "/Books/Dune/"}}, "Dune", true},
    {"backslashes", -1, {}, {{"", "Books\\Dune\\/\\"}}, "Books\\Dune", true},
    {"separators only", -1, {}, {{"", "//"}}, "", true},
    {"second reader title", -1, {}, {{"", ""}, {"Second", ""}}, "", true},
    {"unknown book", -1, {}, {}, "", true},
};

void load(const Lookup& lookup) {
    script() = {};
    script().bookIdsByUid[kUid] = lookup.libraryId;
    script().booksOfLibrary[lookup.libraryId] = lookup.libraryBook;
    for (const ReaderBook& each : lookup.readerBooks) {
        veloran::utilities::Book& book = script().readerBooks[kBook].emplace_back();
        book.title = each.title;
        book.path = each.path;
    }
}

bool readerDatabaseWasOpened() {
    const Calls& calls = script().calls;
    return std::count(calls.begin(), calls.end(), "ReaderDbManager::ReaderDbManager()") > 0;
}

TEST_F(BookLookup, TitleComesFromFirstSourceWithOne) {
    for (const Lookup& lookup : kLookups) {
        SCOPED_TRACE(lookup.name);
        load(lookup);
        EXPECT_EQ(NotesExporterImpl::getBookTitle(kBook), lookup.title);
        EXPECT_EQ(readerDatabaseWasOpened(), lookup.opensReaderDatabase);
    }
}

TEST_F(BookLookup, AuthorComesFromLibraryDatabaseAlone) {
    for (const Lookup& lookup : kLookups) {
        SCOPED_TRACE(lookup.name);
        load(lookup);
        EXPECT_EQ(NotesExporterImpl::getBookAuthorFromExplorerDB(kBook),
                  lookup.libraryId < 0 ? "" : lookup.libraryBook.author);
        EXPECT_FALSE(readerDatabaseWasOpened());
    }
}

}  // namespace
