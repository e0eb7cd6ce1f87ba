// Gives a finished file its final name.
#pragma once

#include <string>

#include "files/file_identity.h"

// Moves the file `from` to `to`, on the same file system, in one step and without ever
// replacing anything. Returns false when something stands at `to`. Throws Complaint, which
// calls the file `shown` and tells the cause.
bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& shown);

// The same, but the file `old` at `to` changes places with it, if it still stands there;
// returns false when it does not, and leaves all as it was.
bool exchange(const std::string& from, const std::string& to, const host::FileIdentity& old,
              const std::string& shown);
