// Positions in a book, in which places are stored: URIs as the host platform reads them.
#pragma once

#include <cstddef>
#include <string>

#include "client/collection/note.h"

namespace client {

// Returns the URI; empty if no part of the place is set. A long chapter or order is cut.
std::string positionOf(const Place& place);

// Returns the parts that a URI of any program names.
Place placeAt(const std::string& position);

// Returns whether `complete` has all parts of `position`, with equal values. A rank does
// not count.
bool hasAllPartsOf(const std::string& position, const std::string& complete);

// Returns the order of a note whose place is not known, from its number in its file. It is
// no place: notes that were made at the same time are in its order.
std::string rankOrder(std::size_t number);

bool isRank(const std::string& order);

}  // namespace client
