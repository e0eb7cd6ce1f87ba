/// @file
/// The fast hash, which identifies a file's content in the device's databases.
#pragma once

/// Computes the fast hash of the file at `path` and writes it as text into `buffer`, which
/// holds `size` bytes; a terminating zero byte is optional. Returns the text's length, at
/// most `size`, or a number below 1 if the file cannot be read or the text does not fit.
/// May be called from any thread, and may throw std::bad_alloc. The library reads at most
/// `size` bytes, for any result.
int FastBookHash(const char* path, char* buffer, int size);
