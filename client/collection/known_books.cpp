#include "client/collection/known_books.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
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

bool hasOneOf(const PackedNotes& notes, std::int64_t bookId, host::ReaderStore& reader) {
    for (const Note& note : notes) {
        if (reader.findNote(bookId, note.uuid)) {
            return true;
        }
    }
    return false;
}

// Returns whether the collection may have loaded `incoming` as the book with the hash.
bool mayBe(const std::string& hash, const IncomingBook& incoming,
           host::ReaderStore& reader) {
    const auto book = reader.findBook(hash);
    return book &&
           (incoming.notes.isEmpty() || hasOneOf(incoming.notes, book->id, reader) ||
            hasOneOf(incoming.replaced, book->id, reader));
}

class KnownBooks {
public:
    explicit KnownBooks(host::ReaderStore& reader) : reader_(reader) {}

    void add(const Book& book) {
        constexpr std::size_t kMostOfOneName = 10;  // keeps the search for notes linear
        Titles& titles = books_[keyOf(shownTitle(book), book.author)];
        if (titles.size() < kMostOfOneName) {
            titles.insert_or_assign(book.hash, book.title);
        }
    }

    // Sets hash and title to those of the known book with the book's title and author.
    // Among several, and among books without a title, the notes decide.
    void recognise(IncomingBook& incoming) const {
        Book& book = incoming.book;
        const auto fitting = books_.find(keyOf(book.title, book.author));
        if (fitting == books_.end()) {
            return;
        }
        const Titles& titles = fitting->second;
        const auto found =
            titles.size() == 1 && !book.title.empty()
                ? titles.begin()
                : std::find_if(titles.begin(), titles.end(), [&](const auto& known) {
                      return mayBe(known.first, incoming, reader_);
                  });
        if (found != titles.end()) {
            std::tie(book.hash, book.title) = *found;
        }
    }

private:
    static std::string keyOf(const std::string& title, const std::string& author) {
        return comparableName(title) + '\0' + comparableName(author);
    }

    using Titles = std::map<std::string, std::string>;  // by hash

    host::ReaderStore& reader_;
    std::unordered_map<std::string, Titles> books_;
};

KnownBooks booksIn(host::ReaderStore& reader, host::LibraryStore& library) {
    KnownBooks known(reader);
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
            known.recognise(incoming);
        }
        known.add(incoming.book);
    }
}

}  // namespace client
