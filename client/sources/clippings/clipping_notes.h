// Converts the records of a clippings file into notes.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/passages.h"
#include "client/sources/content/book_shelf.h"

namespace client {

class ClippingNotes {
public:
    // Adds the next record of the file.
    void add(Clipping clipping);

    // Returns the books with their notes, in the order of the file, and removes them.
    std::vector<IncomingBook> take();

private:
    ShelvedBook& bookOf(const Clipping& clipping);

    BookShelf shelf_;
    ShelvedBook* lastBook_ = nullptr;  // of the record before
    std::vector<std::string> lastNames_;
    std::unordered_map<ShelvedBook*, Passages> passages_;
};

}  // namespace client
