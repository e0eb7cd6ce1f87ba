// Text files of any encoding.
#pragma once

#include <string>

namespace client {

// Returns the HTML document as UTF-8, without a byte order mark: from UTF-16 by its mark,
// or from the encoding that the document names. A document that cannot be converted stays
// as it is.
std::string htmlAsUtf8(std::string html);

}  // namespace client
