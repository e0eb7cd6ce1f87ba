// The bytes of a dump on their way from the document to the records.
#pragma once

#include <deque>
#include <string>

namespace host {

// Pieces of any size, taken off the front and released as they are used: the
// records grow as the payload shrinks.
using Payload = std::deque<std::string>;

}  // namespace host
