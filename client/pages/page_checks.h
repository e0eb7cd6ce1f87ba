// Checks of an exported page, of which the library reports nothing.
#pragma once

#include <set>
#include <string>

namespace client {

// Throws UserError if the page at `path` is missing or not whole; it calls the page
// `displayPath` and names the cause.
void requireWhole(const std::string& path, const std::string& displayPath);

// Returns why the page at `path` does not carry the records of the book with this hash;
// empty if it does. `notes` are the identifiers of the exported notes, all if empty.
std::string findRecordsError(const std::string& path, const std::string& hash,
                             const std::set<unsigned long long>& notes);

// Returns whether the page at `path` names the book with this hash as that of its records.
bool namesBook(const std::string& path, const std::string& hash);

}  // namespace client
