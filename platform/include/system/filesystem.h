/// @file
/// Questions about paths and files. Each may throw std::bad_alloc.
#pragma once

#include <string>

namespace veloran::system::filesystem {

/// Whether anything exists at `path`: a file, a directory, a dangling link or any other
/// entry. A path that cannot be looked up counts as free. May be called from any thread.
bool IsFileExist(const std::string& path);

/// What follows the last "/" of `path`, extension included; the whole path when it has no
/// "/", and empty when it ends in one. May be called from any thread.
std::string GetFileNameFromPath(const std::string& path);

}  // namespace veloran::system::filesystem
