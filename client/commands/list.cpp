#include <iostream>
#include <set>
#include <utility>

#include "client/collection/books.h"
#include "client/collection/note_reader.h"
#include "client/commands/commands.h"
#include "store/database_paths.h"
#include "store/reader_store.h"

namespace client {
namespace {

std::vector<Book> everyBook() {
    return detailsOf(host::ReaderStore(host::kReaderDatabasePath).books());
}

// Returns each once, in the order of their first names.
std::vector<Book> namedBooks(const std::vector<std::string>& names) {
    std::vector<host::BookEntry> books;
    std::set<std::string> hashes;
    for (const std::string& name : names) {
        host::BookEntry book = findBook(name);
        if (hashes.insert(book.fastHash).second) {
            books.push_back(std::move(book));
        }
    }
    return detailsOf(books);
}

class NoteLister {
public:
    explicit NoteLister(const NotesRequest& request)
        : severalBooks_(request.books.size() != 1),
          listing_(request.format->listNotes(std::cout, {severalBooks_, request.pictures})),
          notes_(request.filter, request.order) {}

    void listBook(const Book& book);
    void end();

private:
    const bool severalBooks_;
    const std::unique_ptr<NoteListing> listing_;
    NoteReader notes_;
};

// Among several books, those without a selected note are left out.
void NoteLister::listBook(const Book& book) {
    bool isStarted = !severalBooks_;
    if (isStarted) {
        listing_->startBook(book);
    }
    notes_.read(notes_.inOrder(book.hash), [&](const Note& note) {
        if (!std::exchange(isStarted, true)) {
            listing_->startBook(book);
        }
        listing_->add(note);
    });
}

void NoteLister::end() {
    listing_->end();
    notes_.requireFound();
}

}  // namespace

void listBooks(const ListingFormat& format) {
    const std::unique_ptr<BookListing> listing = format.listBooks(std::cout);
    for (const Book& book : everyBook()) {
        listing->add(book);
    }
    listing->end();
}

void listNotes(const NotesRequest& request) {
    const std::vector<Book> books =
        request.books.empty() ? everyBook() : namedBooks(request.books);
    NoteLister lister(request);
    for (const Book& book : books) {
        lister.listBook(book);
    }
    lister.end();
}

}  // namespace client
