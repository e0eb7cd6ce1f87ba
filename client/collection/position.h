// Positions in a book, in which places are stored: URIs as the host platform reads them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "client/collection/note.h"

namespace client {

// Returns the URI; empty if no part of the place is set. A long chapter or order is cut.
std::string positionOf(const Place& place);

// Reads the parameters that it knows from the URI of any program.
Place placeAt(const std::string& position);

// Returns the path and the parameters of the position, except a rank: views of it.
std::vector<std::string_view> partsOf(std::string_view position);

// Returns the order of a note whose place is not known, from its number in its file. It
// does not place the note, but orders the notes of one time.
std::string rankOrder(std::size_t number);

bool isRank(std::string_view order);

// Returns whether the place has an order that is no rank.
bool hasOrder(const Place& place);

// Returns whether the place is known, apart from a chapter.
bool isKnown(const Place& place);

}  // namespace client
