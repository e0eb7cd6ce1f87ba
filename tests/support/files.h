// Files and exported documents as a whole.
#pragma once

#include <string>

// Empty when there is no such file.
std::string readFile(const std::string& path);

// The document with "@DATE@" for every date.
std::string withoutDates(const std::string& document);

// Creates the missing directories that lead to it.
void writeFile(const std::string& path, const std::string& content);
