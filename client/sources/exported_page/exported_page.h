// A page that this library exported, on this device or another one, perhaps saved again by
// another program.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/source.h"

bool isExportedPage(std::string_view start);

// The records of the page's dump, or what the page shows when that cannot be read.
SourceContent readExportedPage(const std::string& path);
