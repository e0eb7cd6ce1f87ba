// Sidecars of KOReader: the settings of a book and its notes, as a table of Lua.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

bool isSidecar(std::string_view start);

// Reads the list of annotations, or the two lists that older versions write instead.
// Entries without a position are skipped.
SourceContent readSidecar(const std::string& path);

}  // namespace client
