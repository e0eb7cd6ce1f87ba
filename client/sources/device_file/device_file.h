// A device file: books, their notes and a style sheet, as JSON.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

// Returns whether it is a JSON object.
bool isDeviceFile(std::string_view start);

// Also reads the pictures and the style sheet that the file names, relative to its own
// folder. Throws UserError, which names the place, for anything that is missing, misspelt,
// of the wrong type or there twice.
SourceContent readDeviceFile(const std::string& path);

}  // namespace client
