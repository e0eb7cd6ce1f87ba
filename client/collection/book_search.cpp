#include "client/collection/book_search.h"

#include <algorithm>
#include <iterator>

#include "client/error.h"
#include "client/text/case_folding.h"
#include "client/text/first_few.h"
#include "client/text/one_line.h"
#include "store/book_hash.h"
#include "store/database_paths.h"

namespace {

using host::BookEntry;

constexpr const char* kListsThemAll = "\"notes-export books\" lists them all.";

bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

template <class Fits>
std::vector<BookEntry> booksThat(const std::vector<BookEntry>& books, Fits fits) {
    std::vector<BookEntry> found;
    std::copy_if(books.begin(), books.end(), std::back_inserter(found), fits);
    return found;
}

// The books whose title is `typed`, or else whose hash or title starts with it.
std::vector<BookEntry> meant(const std::vector<BookEntry>& books,
                             const std::string& typed) {
    const std::string start = folded(typed);
    if (start.empty()) {
        return {};
    }
    std::vector<BookEntry> found = booksThat(
        books, [&](const BookEntry& book) { return folded(book.title) == start; });
    if (found.empty()) {
        found = booksThat(books, [&](const BookEntry& book) {
            return startsWith(book.fastHash, start) ||
                   startsWith(folded(book.title), start);
        });
    }
    return found;
}

std::string described(const BookEntry& book) {
    return oneLine(book.fastHash) + "  \"" + oneLine(book.title) + "\"";
}

[[noreturn]] void complainAboutMany(const std::string& typed,
                                    const std::vector<BookEntry>& books) {
    std::vector<std::string> lines;
    std::transform(books.begin(), books.end(), std::back_inserter(lines), described);
    throw Complaint("More than one book has a hash or a title that starts with \"" + typed +
                    "\":\n" + firstFew(lines, lines.size()) + "Type more of it. " +
                    kListsThemAll);
}

std::vector<BookEntry> booksIn(host::ReaderStore& store) {
    std::vector<BookEntry> books = store.books();
    if (books.empty()) {
        throw Complaint("The device holds no books. \"notes-export load\" puts some on.");
    }
    return books;
}

}  // namespace

std::vector<BookEntry> allBooks() {
    host::ReaderStore store(host::kReaderDatabasePath);
    return booksIn(store);
}

void complainUnlessHash(const BookEntry& book) {
    if (!host::isBookHash(book.fastHash)) {
        throw Complaint("The book with the hash " + oneLine(book.fastHash) +
                        " can only be listed: a hash is pairs of hexadecimal digits, in "
                        "lower case.");
    }
}

BookEntry findBook(const std::string& typed) {
    host::ReaderStore store(host::kReaderDatabasePath);
    if (auto book = store.findBook(typed)) {
        complainUnlessHash(*book);
        return *book;
    }
    const std::vector<BookEntry> found = meant(booksIn(store), typed);
    if (found.empty()) {
        throw Complaint("No book has a hash or a title that starts with \"" +
                        oneLine(typed) + "\". " + kListsThemAll);
    }
    if (found.size() > 1) {
        complainAboutMany(oneLine(typed), found);
    }
    complainUnlessHash(found[0]);
    return found[0];
}
