// The books of the collection, as both databases know them.
#pragma once

#include <vector>

#include "client/collection/book.h"
#include "store/reader_store.h"

namespace client {

std::vector<Book> detailsOf(const std::vector<host::BookEntry>& books);

}  // namespace client
