// Makes notes of the records of a clippings file.
#pragma once

#include <unordered_map>
#include <vector>

#include "client/sources/clippings/clipping.h"
#include "client/sources/content/book_shelf.h"

namespace client {

class ClippingNotes {
public:
    // Adds the next record of the file.
    void add(Clipping clipping);

    // Returns the books with their notes, in the order of the text. A note of the user
    // belongs to the passage that holds its place; of a passage that was marked again, from
    // the same start or to the same end, the latest version counts. Leaves none behind.
    std::vector<IncomingBook> take();

private:
    BookShelf shelf_;
    std::unordered_map<ShelvedBook*, std::vector<Clipping>> clippings_;
};

}  // namespace client
