// JSON in a form that does not depend on who wrote it.
#pragma once

#include <string>

#include "client/sources/content/json.h"

namespace client {

// Returns the value as JSON without white space, with the members of objects in the order
// of their names.
std::string canonicalJson(const JsonValue& value);

}  // namespace client
