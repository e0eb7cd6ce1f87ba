// Finds the dump in an exported document.
#pragma once

#include <string>

#include "dump/payload.h"

namespace host {

// The payload of the first dump element of the document at `path`. The rest of the
// document need not be well-formed, as long as the root element does not end before it.
// Nothing is read beyond the element's end (and the block that holds it), nothing is
// fetched and no entity is expanded. Throws DumpError: kFileUnreadable, kNoDump, or
// kDumpDamaged when the element does not end or is not Base64.
Payload readDumpElement(const std::string& path);

}  // namespace host
