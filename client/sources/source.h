// The kinds of files that can be loaded.
#pragma once

#include <string>

#include "client/sources/content/source_content.h"

namespace client {

// Recognises the file at `path` by its content and reads it. Throws UserError, which names
// the file and the position, for a file of an unknown kind or with a fault. A record with a
// fault is skipped and listed in the result.
SourceContent readSource(const std::string& path);

}  // namespace client
