// Parts of an exported document.
#pragma once

#include <string>

std::string contentOf(const char* path);

// Extract and compress the JSON text of the document's dump.
std::string textOfDump(const std::string& document);
void compress(const std::string& text);

void writeAtOnce(const std::string& document, const char* path);
