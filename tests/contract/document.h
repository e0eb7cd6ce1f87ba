// Exported documents. Knows the seam alone.
#pragma once

#include <string>

// The exported document around the payload; `head` goes before the dump's element.
std::string documentOf(const std::string& payload, const std::string& head = "");

// The same around the text of the dump's element.
std::string documentAround(const std::string& dump, const std::string& head = "");
