/// @file
/// Queries about paths and files. Each may throw std::bad_alloc.
#pragma once

#include <string>

namespace veloran::system::filesystem {

/// Returns whether anything exists at `path`: a file, a directory, a dangling link or any
/// other entry. False if the path cannot be looked up. May be called from any thread.
bool IsFileExist(const std::string& path);

/// Returns the part of `path` after the last "/", with its extension; the whole path if it
/// has no "/", and empty if it ends in one. May be called from any thread.
std::string GetFileNameFromPath(const std::string& path);

}  // namespace veloran::system::filesystem
