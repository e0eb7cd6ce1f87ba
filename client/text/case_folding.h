// Text as people compare it.
#pragma once

#include <string>

// The text with upper and lower case, and other spellings of the same characters, made
// equal after Unicode's rules; what is never visible, as a soft hyphen, is left out. For
// comparing with other folded text. Bytes that are not UTF-8 count as U+FFFD.
std::string folded(const std::string& text);

// The same, and signs that differ in their form alone, as full-width digits, are equal.
std::string compatiblyFolded(const std::string& text);
