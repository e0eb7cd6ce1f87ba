// Finds the book that someone means.
#pragma once

#include <string>
#include <vector>

#include "store/reader_store.h"

// All books of the device, at least one. Complains when there is none.
std::vector<host::BookEntry> allBooks();

// The book whose hash or title is `typed`; when there is none, the only book whose hash or
// title starts with it. Case does not matter. Complains when no book fits; when several do,
// it names them; and when the book's hash is none.
host::BookEntry findBook(const std::string& typed);

// Complains about a book whose hash is none: it could be a path or an option.
void complainUnlessHash(const host::BookEntry& book);
