// The dump: the records of an exported document, for a later import. It is one gzip member
// that holds the exported books and their notes as UTF-8 JSON:
//
//   {"format": "notes-export-dump", "version": 1, "books": [
//     {"fast_hash": …, "title": …, "path": …, "notes": [
//       {"uuid": …, "tags": [
//         {"tag": 103, "text": …, "json": …, "timestamp": 1741339501}]}]}]}
//
// The fast hash must be pairs of lower-case hexadecimal digits. "format", "version" and
// "books" come in this order, so that a reader checks the version first. A tag's "json" is
// JSON text inside a string, and missing if the tag has none. If a string is not text (not
// UTF-8, or with zero bytes), its key ends in "_base64", and its value is the Base64 of its
// bytes.
#pragma once

#include <cstddef>

namespace host {

inline constexpr const char* kDumpMediaType = "application/x-veloran-dbdump";
inline constexpr const char* kFormatName = "notes-export-dump";
inline constexpr int kFormatVersion = 1;
inline constexpr const char* kBase64Suffix = "_base64";

// A dump beyond these limits is neither written nor read.
struct DumpLimits {
    // Bytes of the JSON text: enough for about 900 pictures of 400 KB. A few hundred KB of
    // hostile gzip could otherwise expand without bound.
    std::size_t size = std::size_t{512} << 20;

    // Books, notes and tags together. An empty record takes ten times as much memory as
    // bytes in the dump.
    std::size_t records = 4000000;
};

}  // namespace host
