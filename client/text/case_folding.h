// Forms of texts for comparisons: case folding and Unicode normalization.
#pragma once

#include <string>

namespace client {

// Returns the text for comparing with other folded text: upper and lower case, and other
// spellings of the same characters, are made equal after Unicode's rules; invisible
// characters, such as a soft hyphen, are left out. Bytes that are not UTF-8 count as
// U+FFFD.
std::string caseFolded(const std::string& text);

// Also makes characters equal that differ only in form, such as full-width digits.
std::string caseFoldedNfkc(const std::string& text);

// Returns the name for comparing with other names: composed, without invisible characters,
// with one space for each run of spaces, and none at its ends. Case stays.
std::string comparableName(const std::string& name);

}  // namespace client
