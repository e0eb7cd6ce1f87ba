// Whole files, for tests.
#pragma once

#include <string>

// Empty when there is no such file.
std::string readFile(const std::string& path);

// Creates the missing directories that lead to it.
void writeFile(const std::string& path, const std::string& content);
