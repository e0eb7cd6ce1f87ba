// Which books someone means who typed what is no book's hash.
#pragma once

#include <string>
#include <vector>

#include "store/reader_store.h"

// All below take letters of the English alphabet as equal in either case.

// Whether the book's title starts with `typed`, which is not empty then.
bool startsTitle(const std::string& typed, const host::BookEntry& book);

// The books, those first of whose hash or title some part is nearest to `typed` by edit
// distance; equally near ones stay in their order.
std::vector<host::BookEntry> byNearness(const std::string& typed,
                                        std::vector<host::BookEntry> books);
