// A device file: books, their notes and a style sheet, as JSON.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

// Returns whether the text starts a JSON object.
bool isDeviceFile(std::string_view start);

// Also reads the pictures and the style sheet, whose paths are relative to the folder of
// the file. Throws UserError, which names the position, if anything is missing, misspelt,
// duplicate or of the wrong type.
SourceContent readDeviceFile(const std::string& path);

}  // namespace client
