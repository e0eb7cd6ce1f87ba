// Moves a finished file to its final name.
#pragma once

#include <string>

#include "files/file_identity.h"

namespace client {

// Moves the file `from` to `to`, on the same file system, in one step and without ever
// replacing anything. Returns false if something stands at `to`. Throws UserError, which
// calls the file `shown` and names the cause.
bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& shown);

// Swaps the file `from` and the file `old` at `to`. Returns false, and leaves all as it
// was, if `old` no longer stands there. Throws like moveIntoPlace.
bool swapFiles(const std::string& from, const std::string& to,
               const host::FileIdentity& old, const std::string& shown);

}  // namespace client
