// Well-known libraries that write the same notes as the same markup, and our writer.
#pragma once

#include "note_source.h"

namespace peers {

// A way to write a document of the notes, in memory and into a file. The size in memory is
// returned.
struct Peer {
    const char* name;
    std::size_t (*toMemory)(NoteSource& notes);
    void (*toFile)(NoteSource& notes, const char* path);
};

extern const Peer writer;
extern const Peer libxml2;   // its xmlTextWriter
extern const Peer tinyxml2;  // its XMLPrinter
extern const Peer pugixml;   // a tree that is built, then saved

}  // namespace peers
