// Access to JSON-LD, in which a list of one value may be the value itself.
#pragma once

#include <string>
#include <vector>

#include "client/sources/content/json.h"

namespace client {

// Returns the elements of an array; the value itself if it is not an array, none if it is
// null.
std::vector<const JsonValue*> elementsOf(const JsonValue& value);

// Returns a text, also if it is under the name of its language; empty for other values.
std::string textOf(const JsonValue& value);

// Returns the value as JSON that does not depend on who wrote it: without white space, with
// the members of objects in the order of their names.
std::string canonicalJson(const JsonValue& value);

}  // namespace client
