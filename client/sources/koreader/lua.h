// Tables of Lua, as data.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "client/sources/content/json.h"

namespace client {

// Parses the content of the file at `path`: a table, perhaps after "return", whose keys and
// values are literals. A table without keys becomes an array; any other becomes an object,
// in which the key 1 is the name "1". Strings of the document are in `text`, which is
// changed and must outlive it. Throws UserError with the line and the column for anything
// else, such as a call, and for tables that are nested too deep.
JsonDocument parseLua(std::string& text, const std::string& path);

// Returns the values with finite numbers as keys, in the order of these. Of several with
// one key, the last one in the file counts.
std::vector<std::pair<double, const JsonValue*>> numberedIn(const JsonValue& table);

}  // namespace client
