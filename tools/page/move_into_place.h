// Gives a finished file its final name.
#pragma once

#include <string>

// Moves the file `from` to `to`, on the same file system, in one step and without ever
// replacing anything. Returns false when something stands at `to`. Throws Complaint, which
// calls the file `shown` and tells the cause.
bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& shown);
