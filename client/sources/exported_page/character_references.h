// References to characters in HTML: "&amp;", "&#65;", "&#x41;".
#pragma once

#include <string>
#include <string_view>

// The text with each reference replaced by its character; what is none stays.
std::string withoutReferences(std::string_view text);
