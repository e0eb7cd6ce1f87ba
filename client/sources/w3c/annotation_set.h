// Annotation sets of the W3C ("EPUB Annotations", .annotation), as JSON-LD, and the older
// collections of Web Annotations.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/content/source_content.h"

namespace client {

bool isAnnotationSet(std::string_view start);

// Annotations without a target are skipped.
SourceContent readAnnotationSet(const std::string& path);

}  // namespace client
