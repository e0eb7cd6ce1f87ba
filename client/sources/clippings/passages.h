// The clippings of one book, and what they have to do with each other.
#pragma once

#include <vector>

#include "client/sources/clippings/clipping.h"

namespace client {

// Both take the clippings in the order of the file.

// Drops each marked passage that a later one holds, from the same start or to the same end;
// the later one takes over its identity.
void dropSuperseded(std::vector<Clipping>& clippings);

// Makes each of the user's notes a comment of the passage that holds its place; of several,
// of the one that was marked last before it. A note that no passage holds stays alone.
void attachNotes(std::vector<Clipping>& clippings);

}  // namespace client
