// The kinds of files that notes come in.
#pragma once

#include <string>

#include "client/sources/content/source_content.h"

namespace client {

// Recognises the file at `path` by its content and reads all of it. Throws UserError, which
// names the file and the place, for a file of an unknown kind or with a fault. A fault of
// one record is noted, and the record is skipped.
SourceContent readSource(const std::string& path);

}  // namespace client
