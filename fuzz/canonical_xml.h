// Documents as an XML parser sees them.
#pragma once

#include <string>

namespace fuzz {

// The document, which must be well-formed, as Canonical XML with comments.
std::string canonical(const std::string& document);

// The bytes with "?" for each that belongs to no legal character.
std::string legal(const std::string& bytes);

}  // namespace fuzz
