#include "client/collection/books.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "client/error.h"
#include "client/text/affixes.h"
#include "client/text/case_folding.h"
#include "client/text/control_characters.h"
#include "client/text/first_few.h"
#include "store/book_hash.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

using host::BookEntry;

constexpr const char* kListsThemAll = "\"notes-export books\" lists them all.";

template <class Fits>
std::vector<BookEntry> booksThat(const std::vector<BookEntry>& books, Fits fits) {
    std::vector<BookEntry> found;
    std::copy_if(books.begin(), books.end(), std::back_inserter(found), fits);
    return found;
}

// Returns the books whose title is `typed`, or else whose hash or title starts with it.
std::vector<BookEntry> matchingBooks(const std::vector<BookEntry>& books,
                                     const std::string& typed) {
    const std::string start = caseFolded(typed);
    if (start.empty()) {
        return {};
    }
    std::vector<BookEntry> found = booksThat(
        books, [&](const BookEntry& book) { return caseFolded(book.title) == start; });
    if (found.empty()) {
        found = booksThat(books, [&](const BookEntry& book) {
            return startsWith(book.fastHash, start) ||
                   startsWith(caseFolded(book.title), start);
        });
    }
    return found;
}

std::string described(const BookEntry& book) {
    return oneLine(book.fastHash) + "  \"" + oneLine(book.title) + "\"";
}

[[noreturn]] void throwAmbiguous(const std::string& typed,
                                 const std::vector<BookEntry>& books) {
    FirstFew lines;
    for (const BookEntry& book : books) {
        lines.add(described(book));
    }
    throw UserError("More than one book has a hash or a title that starts with \"" + typed +
                    "\":\n" + lines.text() + "Type more of it. " + kListsThemAll);
}

std::vector<BookEntry> booksIn(host::ReaderStore& store) {
    std::vector<BookEntry> books = store.books();
    if (books.empty()) {
        throw UserError("The collection holds no books. \"notes-export load\" adds some.");
    }
    return books;
}

}  // namespace

std::string authorOf(const std::string& hash, host::LibraryStore& library) {
    if (!host::isBookHash(hash)) {  // FromHex may give the uid of another book
        return {};
    }
    const auto id = library.findBook(veloran::utilities::SerializationUtils::FromHex(hash));
    return id ? library.book(*id).value_or(host::LibraryBook{}).author : std::string();
}

std::vector<BookEntry> allBooks() {
    host::ReaderStore store(host::kReaderDatabasePath);
    return booksIn(store);
}

void requireHash(const BookEntry& book) {
    if (!host::isBookHash(book.fastHash)) {
        throw UserError("The book with the hash " + oneLine(book.fastHash) +
                        " can only be listed: a hash is pairs of hexadecimal digits, in "
                        "lower case.");
    }
}

BookEntry findBook(const std::string& typed) {
    host::ReaderStore store(host::kReaderDatabasePath);
    if (auto book = store.findBook(typed)) {
        requireHash(*book);
        return *book;
    }
    const std::vector<BookEntry> found = matchingBooks(booksIn(store), typed);
    if (found.empty()) {
        throw UserError("No book has a hash or a title that starts with \"" +
                        oneLine(typed) + "\". " + kListsThemAll);
    }
    if (found.size() > 1) {
        throwAmbiguous(oneLine(typed), found);
    }
    requireHash(found[0]);
    return found[0];
}

std::vector<Book> detailsOf(const std::vector<host::BookEntry>& books) {
    host::LibraryStore library(host::kLibraryDatabasePath);
    std::vector<Book> details;
    details.reserve(books.size());
    for (const auto& [id, hash, title, path] : books) {
        details.push_back({hash, title, authorOf(hash, library), path});
    }
    return details;
}

}  // namespace client
