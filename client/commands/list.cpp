#include <algorithm>
#include <csignal>
#include <iostream>
#include <set>
#include <utility>
#include <vector>

#include "client/collection/book_notes.h"
#include "client/collection/book_search.h"
#include "client/commands/commands.h"
#include "client/error.h"
#include "store/book_hash.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/reader_store.h"
#include "utilities/reader_db_manager.h"
#include "utilities/serialization_utils.h"

namespace {

std::string author(host::LibraryStore& library, const std::string& hash) {
    if (!host::isBookHash(hash)) {  // other text spells the bytes of some other book
        return {};
    }
    const auto id = library.findBook(veloran::utilities::SerializationUtils::FromHex(hash));
    return id ? library.book(*id).value_or(host::LibraryBook{}).author : std::string();
}

std::vector<ListedBook> listed(const std::vector<host::BookEntry>& books) {
    host::LibraryStore library(host::kLibraryDatabasePath);
    std::vector<ListedBook> result;
    result.reserve(books.size());
    for (const host::BookEntry& book : books) {
        result.push_back(
            {book.fastHash, book.title, author(library, book.fastHash), book.path});
    }
    return result;
}

std::vector<ListedBook> everyBook() {
    return listed(host::ReaderStore(host::kReaderDatabasePath).books());
}

// Each once, in the order of their first names.
std::vector<ListedBook> namedBooks(const std::vector<std::string>& names) {
    std::vector<host::BookEntry> books;
    std::set<std::string> hashes;
    for (const std::string& name : names) {
        host::BookEntry book = findBook(name);
        if (hashes.insert(book.fastHash).second) {
            books.push_back(std::move(book));
        }
    }
    return listed(books);
}

// Fetches one note at a time: together, their pictures may take all memory.
class NoteLister {
public:
    explicit NoteLister(const NotesRequest& request)
        : request_(request),
          missing_(request.filter.ids.begin(), request.filter.ids.end()),
          severalBooks_(request.books.size() != 1),
          listing_(
              request.format->listNotes(std::cout, {severalBooks_, request.pictures})) {}

    void listBook(const ListedBook& book);
    void end();

private:
    void startBook(const ListedBook& book);

    const NotesRequest& request_;
    std::set<unsigned long long> missing_;  // of the notes asked for by identifier
    bool severalBooks_;
    std::unique_ptr<NoteListing> listing_;
    veloran::utilities::ReaderDbManager readerDb_;
};

// Among several books, those without a selected note are left out.
void NoteLister::listBook(const ListedBook& book) {
    bool isStarted = !severalBooks_;
    if (isStarted) {
        listing_->startBook(book);
    }
    for (const auto& [key, id] : readerDb_.getBookNotesHashUUIDs(book.hash, true)) {
        missing_.erase(id);
        const veloran::utilities::Note note = readerDb_.getNote(key);
        if (!request_.filter.selects(note)) {
            continue;
        }
        if (!std::exchange(isStarted, true)) {
            listing_->startBook(book);
        }
        listing_->add(note);
    }
}

void NoteLister::end() {
    listing_->end();
    if (!missing_.empty()) {
        throw Complaint("The listed books have no note " +
                        std::to_string(*missing_.begin()) + '.');
    }
}

}  // namespace

void listBooks(const ListingFormat& format) {
    const std::unique_ptr<BookListing> listing = format.listBooks(std::cout);
    for (const ListedBook& book : everyBook()) {
        listing->add(book);
    }
    listing->end();
}

void listNotes(const NotesRequest& request) {
    static_cast<void>(
        std::signal(SIGXFSZ, SIG_IGN));  // a file at its size limit is a failed write
    const std::vector<ListedBook> books =
        request.books.empty() ? everyBook() : namedBooks(request.books);
    NoteLister lister(request);
    for (const ListedBook& book : books) {
        lister.listBook(book);
    }
    lister.end();
}
