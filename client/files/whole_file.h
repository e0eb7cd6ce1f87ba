// Whole files, with a Complaint in the system's words where one cannot be read or written.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

// Refuses, before it reads it, what is no regular file or larger than a database takes.
std::string readFile(const std::filesystem::path& path);

// The first `size` bytes, or all when there are fewer. Refuses what is no regular file.
std::string readStart(const std::filesystem::path& path, std::size_t size);

// Creates the missing folders that lead to it. The file that is there stays as it is until
// the new one is whole.
void writeFile(const std::filesystem::path& path, const std::string& content);

void makeFolders(const std::filesystem::path& path);
