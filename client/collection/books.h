// Finds the books of the collection.
#pragma once

#include <string>
#include <vector>

#include "client/collection/book.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

// Returns all books of the collection. Throws UserError if there is none.
std::vector<host::BookEntry> allBooks();

// Returns the book whose hash or title is `typed`, else the only book whose hash or title
// starts with it. Case does not matter. Throws UserError if no book matches, if several
// match (the message lists them), or if the book's hash is not valid.
host::BookEntry findBook(const std::string& typed);

// Throws UserError if the book's hash is not valid, because it could be a path or an
// option.
void requireHash(const host::BookEntry& book);

// Returns the author in the library database; empty if it is not known.
std::string authorOf(const std::string& hash, host::LibraryStore& library);

std::vector<Book> detailsOf(const std::vector<host::BookEntry>& books);

}  // namespace client
