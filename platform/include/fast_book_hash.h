/// @file
/// The fast hash: the name by which the device's databases know a file's content.
#pragma once

/// Computes the fast hash of the file at `path` and writes it as text into `buffer`, which
/// holds `size` bytes; no terminating zero byte is promised. Returns the text's length, at
/// most `size`, or a number below 1 when the file cannot be read or the text does not fit.
/// May be called from any thread, and may throw std::bad_alloc. The library does not read
/// past `size` bytes, whatever the result says.
int FastBookHash(const char* path, char* buffer, int size);
