// Well-known libraries that write the same notes as the same markup.
#pragma once

#include <cstddef>

#include "memory_book.h"

namespace peers {

// A way to write a document of the notes, in memory and into a file. The size in memory is
// returned.
struct Peer {
    const char* name;
    std::size_t (*toMemory)(const RecordedNotes& notes);
    void (*toFile)(const RecordedNotes& notes, const char* path);
};

extern const Peer libxml2;   // its xmlTextWriter
extern const Peer tinyxml2;  // its XMLPrinter

}  // namespace peers
