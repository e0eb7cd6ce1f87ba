#include "commands/commands.h"
#include "device/book_notes.h"
#include "listings/listing.h"
#include "store/book_hash.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/reader_store.h"
#include "utilities/serialization_utils.h"

namespace {

std::string author(host::LibraryStore& library, const std::string& hash) {
    if (!host::isBookHash(hash)) {  // other text spells the bytes of some other book
        return {};
    }
    const auto id = library.findBook(veloran::utilities::SerializationUtils::FromHex(hash));
    return id ? library.book(*id).value_or(host::LibraryBook{}).author : std::string();
}

template <class Items>
void print(const Items& items, Format format) {
    if (format == Format::Json) {
        printJson(items);
    } else {
        printLines(items);
    }
}

}  // namespace

void listBooks(Format format) {
    host::LibraryStore library(host::kLibraryDatabasePath);
    Books books;
    for (const host::BookEntry& book :
         host::ReaderStore(host::kReaderDatabasePath).books()) {
        books.push_back(
            {book.fastHash, book.title, author(library, book.fastHash), book.path});
    }
    print(books, format);
}

void listNotes(const std::string& hash, Format format) { print(notesOf(hash), format); }
