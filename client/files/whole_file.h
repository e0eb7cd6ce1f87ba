// Whole files. A file that cannot be read or written is a UserError in the system's words.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace client {

// Refuses, before it reads it, a file that is not regular or larger than a database takes.
std::string readFile(const std::filesystem::path& path);

// Returns the first `size` bytes, or all if there are fewer. Refuses a file that is not
// regular.
std::string readStart(const std::filesystem::path& path, std::size_t size);

// Creates the missing folders that lead to the file. A file that is there stays as it is
// until the new one is whole.
void writeFile(const std::filesystem::path& path, const std::string& content);

// Writes the file, and returns false if something stands at `path` already. A signal that
// ends the program leaves no part of it.
bool writeNewFile(const std::filesystem::path& path, const std::string& content);

void makeFolders(const std::filesystem::path& path);

}  // namespace client
