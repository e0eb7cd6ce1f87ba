// Files and exported documents as a whole.
#pragma once

#include <string>

// Empty when there is no such file.
std::string readFile(const std::string& path);

// The document with its first date, and whatever repeats it, replaced by "@DATE@".
std::string withoutDate(std::string document);

// Creates the missing directories that lead to it.
void writeFile(const std::string& path, const std::string& content);
