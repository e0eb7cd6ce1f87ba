// Whole files, with a Complaint where one cannot be read or written.
#pragma once

#include <filesystem>
#include <string>

void complainUnlessReadable(const std::filesystem::path& path);

std::string readFile(const std::filesystem::path& path);

// Creates the missing folders that lead to it.
void writeFile(const std::filesystem::path& path, const std::string& content);
