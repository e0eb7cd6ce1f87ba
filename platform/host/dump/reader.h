// Reads the dump of an exported document into records.
#pragma once

#include <string>
#include <vector>

#include "dump/format.h"
#include "dump/payload.h"
#include "store/records.h"

namespace host {

// The records of the dump (format.h) in the document at `path`, complete and checked.
// Throws DumpError, with what the import is to answer.
std::vector<BookRecord> readDump(const std::string& path);

// The same of a payload.
std::vector<BookRecord> readPayload(Payload payload, const DumpLimits& limits = {});

}  // namespace host
