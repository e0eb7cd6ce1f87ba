// Looks at an exported page, of which the library reports nothing.
#pragma once

#include <set>
#include <string>

namespace client {

// Throws UserError when the page at `path` is not there or not whole; it calls the page
// `shown` and tells the cause.
void requireWhole(const std::string& path, const std::string& shown);

// Why the page at `path` does not carry the records of the book with the hash `hash`; empty
// when it does. `notes` are those that were exported, all when empty.
std::string whyWithoutRecords(const std::string& path, const std::string& hash,
                              const std::set<unsigned long long>& notes);

}  // namespace client
