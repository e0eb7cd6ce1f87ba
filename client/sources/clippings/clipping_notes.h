// Makes notes of the records of a clippings file.
#pragma once

#include <cstddef>
#include <vector>

#include "client/sources/clippings/clipping.h"
#include "client/sources/content/book_shelf.h"

class ClippingNotes {
public:
    // Adds the next record of the file.
    void add(Clipping clipping);

    // The books with their notes, in the order of the text. What the user wrote belongs to
    // the passage that holds its place; of a passage that was marked anew, from the same
    // start or to the same end, the latest version counts. Leaves none behind.
    std::vector<SourceBook> take();

private:
    void shelve(std::size_t book, std::vector<Clipping> records);

    BookShelf shelf_;
    std::vector<std::vector<Clipping>> records_;  // of each book
};
