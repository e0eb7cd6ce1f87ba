#include "client/collection/known_books.h"

#include <algorithm>
#include <set>
#include <string>
#include <unordered_map>

#include "client/collection/books.h"
#include "client/text/case_folding.h"

namespace client {
namespace {

class KnownBooks {
public:
    void add(const std::string& hash, const std::string& title, const std::string& author) {
        hashes_[keyOf(title, author)].insert(hash);
    }

    // Returns the book's own hash if no known book has its title and author, or several.
    std::string hashFor(const Book& book) const {
        const auto fitting = hashes_.find(keyOf(book.title, book.author));
        const bool isKnown =
            !book.title.empty() && fitting != hashes_.end() && fitting->second.size() == 1;
        return isKnown ? *fitting->second.begin() : book.hash;
    }

private:
    static std::string keyOf(const std::string& title, const std::string& author) {
        return comparableName(title) + '\0' + comparableName(author);
    }

    std::unordered_map<std::string, std::set<std::string>> hashes_;
};

KnownBooks booksIn(host::ReaderStore& reader, host::LibraryStore& library) {
    KnownBooks known;
    for (const host::BookEntry& book : reader.books()) {
        known.add(book.fastHash, book.title, authorOf(book.fastHash, library));
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
    for (auto& incoming : books) {
        Book& book = incoming.book;
        book.hash = incoming.isHashDerived ? known.hashFor(book) : book.hash;
        known.add(book.hash, book.title, book.author);
    }
}

}  // namespace client
