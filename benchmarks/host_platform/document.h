// An exported document, taken apart and written again.
#pragma once

#include <string>

std::string contentOf(const char* path);

// The JSON text of the document's dump, and the work of compressing it.
std::string textOfDump(const std::string& document);
void compress(const std::string& text);

void writeAtOnce(const std::string& document, const char* path);
