// Well-known libraries that write the same notes as the same markup.
#pragma once

#include <cstddef>

#include "memory_book.h"

namespace peers {

// A library that writes a document of the notes, in memory (returning its size) and into a
// file.
struct Peer {
    const char* name;
    std::size_t (*toMemory)(const RecordedNotes& notes);
    void (*toFile)(const RecordedNotes& notes, const char* path);
};

extern const Peer libxml2;   // its xmlTextWriter
extern const Peer tinyxml2;  // its XMLPrinter

}  // namespace peers
