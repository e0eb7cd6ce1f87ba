// The target of an annotation: its passage, and the place in the book.
#pragma once

#include <string>

#include "client/collection/note.h"
#include "client/sources/content/json.h"

namespace client {

// Returns the first target of the annotation; null if it has none.
const JsonValue& targetOf(const JsonValue& annotation);

// Returns the URI of the book, or of a file within it; empty if there is none.
std::string sourceOf(const JsonValue& target);

std::string quoteIn(const JsonValue& target);

// Returns the page and the chapter.
Place placeIn(const JsonValue& target);

// Returns the CFI at which the passage starts, without the texts in brackets; empty if
// there is none.
std::string cfiIn(const JsonValue& target);

// Returns the sort key of the progression; empty if there is none.
std::string progressionIn(const JsonValue& target);

}  // namespace client
