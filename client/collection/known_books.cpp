#include "client/collection/known_books.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>

#include "client/collection/books.h"
#include "client/text/case_folding.h"
#include "store/book_hash.h"

namespace client {
namespace {

// Returns the title that a page shows.
std::string shownTitle(const Book& book) {
    return book.title.empty() ? std::filesystem::path(book.path).filename().string()
                              : book.title;
}

class KnownBooks {
public:
    void add(const Book& book) {
        books_[keyOf(shownTitle(book), book.author)].insert_or_assign(book.hash,
                                                                      book.title);
    }

    // Sets hash and title to those of the known book, if exactly one has the book's title
    // and author.
    void recognise(Book& book) const {
        const auto fitting = books_.find(keyOf(book.title, book.author));
        if (!book.title.empty() && fitting != books_.end() && fitting->second.size() == 1) {
            std::tie(book.hash, book.title) = *fitting->second.begin();
        }
    }

private:
    static std::string keyOf(const std::string& title, const std::string& author) {
        return comparableName(title) + '\0' + comparableName(author);
    }

    using Titles = std::map<std::string, std::string>;  // by hash
    std::unordered_map<std::string, Titles> books_;
};

KnownBooks booksIn(host::ReaderStore& reader, host::LibraryStore& library) {
    KnownBooks known;
    for (const host::BookEntry& entry : reader.books()) {
        if (host::isBookHash(entry.fastHash)) {  // the library takes no other
            known.add({entry.fastHash, entry.title, authorOf(entry.fastHash, library),
                       entry.path});
        }
    }
    return known;
}

}  // namespace

void useKnownHashes(std::vector<IncomingBook>& books, host::ReaderStore& reader,
                    host::LibraryStore& library) {
    const auto isDerived = [](const IncomingBook& book) { return book.isHashDerived; };
    if (std::none_of(books.begin(), books.end(), isDerived)) {
        return;
    }
    KnownBooks known = booksIn(reader, library);
    for (IncomingBook& incoming : books) {
        if (incoming.isHashDerived) {
            known.recognise(incoming.book);
        }
        known.add(incoming.book);
    }
}

}  // namespace client
