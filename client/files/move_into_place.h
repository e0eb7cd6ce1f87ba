// Moves a finished file to its final name, on the same file system.
#pragma once

#include <functional>
#include <string>

namespace client {

// Moves the file `from` to `to` without ever replacing a file that holds anything. Returns
// false if something stands at `to`. Throws UserError, which calls the file `displayPath`
// and names the cause.
bool moveIntoPlace(const std::string& from, const std::string& to,
                   const std::string& displayPath);

// Puts the file `from` in the place of the one at `to`, with its mode. `isExpected` is
// asked about the path of the file that came out; if it returns false, that file goes back,
// and the result is false. The old file remains beside `from`. Throws like moveIntoPlace.
bool replaceFile(const std::string& from, const std::string& to,
                 const std::function<bool(const std::string&)>& isExpected,
                 const std::string& displayPath);

}  // namespace client
