// Finds the dump in an exported document.
#pragma once

#include <string>

#include "dump/payload.h"

namespace host {

// Returns the payload of the first dump element of the document at `path`. The rest of the
// document need not be well-formed, but the root element must not end before the dump.
// Reads no further than the block with the element's end, fetches nothing and expands no
// entity. Throws DumpError: kFileUnreadable, kNoDump, or kDumpDamaged if the element does
// not end or is not Base64.
Payload readDumpElement(const std::string& path);

}  // namespace host
