// Tables of Lua, as data.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "client/sources/content/json.h"

namespace client {

// Parses the content of the file at `path`: a table, perhaps after "return", of texts in
// double quotes, decimal numbers, true, false and tables. A table becomes an object, in
// which the key 1 is the name "1". Throws UserError with the line and the column for
// anything else, such as a call, and for tables that are nested too deep.
JsonDocument parseLua(const std::string& text, const std::string& path);

// Returns the values with finite numbers as keys. Of several with one key, the last one in
// the file counts.
std::map<double, const JsonValue*> numberedIn(const JsonValue& table);

// Returns the text without the spaces and the comments at its start.
std::string_view withoutLuaSpace(std::string_view text);

}  // namespace client
