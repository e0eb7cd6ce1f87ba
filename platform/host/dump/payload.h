// The bytes of a dump, between the document and the records.
#pragma once

#include <deque>
#include <string>

namespace host {

// Pieces of any size, removed from the front as they are read, so that payload and records
// are never both whole in memory.
using Payload = std::deque<std::string>;

}  // namespace host
