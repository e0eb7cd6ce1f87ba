// Reads the dump of an exported document into records.
#pragma once

#include <string>
#include <vector>

#include "dump/format.h"
#include "dump/payload.h"
#include "store/records.h"

namespace host {

// Returns the records of the dump (format.h) in the document at `path`, complete and
// checked. Throws DumpError, which has the result of the import.
std::vector<BookRecord> readDump(const std::string& path);

// Returns the records of a payload.
std::vector<BookRecord> readPayload(Payload payload, const DumpLimits& limits = {});

}  // namespace host
