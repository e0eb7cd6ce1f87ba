// Checks that a database is safe to read and has the tables of a Kobo reader.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <string>

namespace client {

// Protects against a hostile schema, because the database is from another device.
void distrust(SQLite::Database& database);

// Throws UserError unless both tables are there, and reading them computes nothing. What
// else is in the database does not matter.
void requireKoboTables(SQLite::Database& database, const std::string& path);

}  // namespace client
