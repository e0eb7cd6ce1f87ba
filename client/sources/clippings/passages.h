// The records of one book of a clippings file, and what they have to do with each other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "client/sources/clippings/clipping.h"

struct Passage {
    Clipping record;
    std::string uuid;
    std::string comment = {};       // what the user wrote to it
    std::size_t latestComment = 0;  // where the note begins there that came last
    std::int64_t commentTimestamp = 0;
    bool isDropped = false;  // it lives on in another passage
};

// All below take the passages in the order of the file.

// Drops each marked passage that a later one holds, from the same start or to the same end;
// the later one takes over its uuid.
void dropSuperseded(std::vector<Passage>& passages);

// Makes each of the user's notes a comment of the passage that holds its place, of several
// the one that was marked last before it; a note that no passage holds is its own.
void attachNotes(std::vector<Passage>& passages);
