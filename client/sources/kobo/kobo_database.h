// The database of a Kobo reader ("KoboReader.sqlite").
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

// Returns whether it is an SQLite database.
bool isKoboDatabase(std::string_view start);

// Writes nothing, neither to the database nor beside it. Throws UserError for other
// databases.
SourceContent readKoboDatabase(const std::string& path);

}  // namespace client
