// The dump: what an export carries for a later import. One gzip member that holds, as UTF-8
// JSON, the exported books with their notes:
//
//   {"format": "notes-export-dump", "version": 1, "books": [
//     {"fast_hash": …, "title": …, "path": …, "notes": [
//       {"uuid": …, "tags": [
//         {"tag": 103, "text": …, "json": …, "timestamp": 1741339501}]}]}]}
//
// The fast hash is pairs of lower-case hexadecimal digits, or the dump is refused.
// "format", "version" and "books" come in this order, so that a reader of another version
// knows it in time. A tag's "json" is JSON text inside a string, and missing where the tag
// has none. Where a string is not text (not UTF-8, or with zero bytes) its key ends in
// "_base64", and its value is the Base64 of its bytes.
#pragma once

#include <cstddef>

namespace host {

inline constexpr const char* kDumpMediaType = "application/x-veloran-dbdump";
inline constexpr const char* kFormatName = "notes-export-dump";
inline constexpr int kFormatVersion = 1;
inline constexpr const char* kBase64Suffix = "_base64";

// What exceeds these is neither written nor read.
struct DumpLimits {
    // Bytes of the JSON text: room for about 900 pictures of 400 KB, and a bound on what a
    // few hundred KB of hostile gzip can become.
    std::size_t size = std::size_t{512} << 20;

    // Books, notes and tags together. An empty record takes ten times as much memory as it
    // has bytes in the dump.
    std::size_t records = 4000000;
};

}  // namespace host
