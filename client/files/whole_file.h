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

// Both write a new file of its own name first, so that a file that is seen is whole. A
// signal that ends the program leaves none of it.

// Creates the missing folders that lead to the file, and replaces a file that is there.
void writeFile(const std::filesystem::path& path, const std::string& content);

// Returns false if something stands at `path` already.
bool writeNewFile(const std::filesystem::path& path, const std::string& content);

void makeFolders(const std::filesystem::path& path);

}  // namespace client
