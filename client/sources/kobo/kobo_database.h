// The database of a Kobo reader ("KoboReader.sqlite").
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

// Returns whether the file is an SQLite database.
bool isKoboDatabase(std::string_view start);

// Changes no file. Throws UserError for other databases.
SourceContent readKoboDatabase(const std::string& path);

}  // namespace client
