// Finds the dump in an exported document.
#pragma once

#include <string>

#include "dump/payload.h"

namespace host {

// The payload of the first dump element of the document at `path`. What stands around it
// need not be well-formed, as long as it does not end the root element first. Nothing is
// read beyond the element's end (and the block that holds it), nothing is fetched and no
// entity is expanded. Throws DumpError: kFileUnreadable, kNoDump, or kDumpDamaged when the
// element does not end or is not Base64.
Payload readDumpElement(const std::string& path);

}  // namespace host
