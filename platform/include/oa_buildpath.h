/// @file
/// Creation of directories.
#pragma once

/// Creates the missing directories that lead to the file at `path`, not the file itself.
/// Returns 0 if they all exist afterwards and -1 otherwise. The library ignores the result.
/// May be called from any thread, and may throw
/// std::bad_alloc.
int oa_buildpath(const char* path);
