// Relations between the clippings of one book.
#pragma once

#include <vector>

#include "client/sources/clippings/clipping.h"

namespace client {

// Both functions expect the clippings in the order of the file.

// Drops each marked passage that a later one contains, from the same start or to the same
// end; the later one gets its identity.
void dropSuperseded(std::vector<Clipping>& passages);

// Makes each of the user's notes a comment of the passage that contains its position; of
// several, the one that was marked last before it. Other notes stay separate.
void attachNotes(std::vector<Clipping>& passages);

}  // namespace client
