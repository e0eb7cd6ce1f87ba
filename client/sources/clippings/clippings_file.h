// "My Clippings.txt": the text file to which a Kindle appends passages and notes.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

bool isClippings(std::string_view start);

// Records without an end or a known form are skipped.
SourceContent readClippings(const std::string& path);

}  // namespace client
