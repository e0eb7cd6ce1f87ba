#include "client/collection/book_details.h"

#include <string>

#include "store/book_hash.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

std::string authorOf(const std::string& hash, host::LibraryStore& library) {
    if (!host::isBookHash(hash)) {  // other text spells the bytes of some other book
        return {};
    }
    const auto id = library.findBook(veloran::utilities::SerializationUtils::FromHex(hash));
    return id ? library.book(*id).value_or(host::LibraryBook{}).author : std::string();
}

}  // namespace

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
