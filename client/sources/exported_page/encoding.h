// Conversion of HTML documents to UTF-8.
#pragma once

#include <string>

namespace client {

// Returns the HTML document as UTF-8, without a byte order mark. The mark selects UTF-16;
// otherwise the document names its encoding. U+FFFD replaces what is invalid in it. A
// document that names no known encoding is returned unchanged.
std::string htmlAsUtf8(std::string html);

}  // namespace client
