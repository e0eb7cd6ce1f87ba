// A page that this library exported, here or on a device, possibly saved again by another
// program.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

bool isExportedPage(std::string_view start);

// Reads the records of the page's dump, or the visible page if there is no such dump.
SourceContent readExportedPage(const std::string& path);

}  // namespace client
