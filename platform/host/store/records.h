// Books and notes as they travel between databases: without row identifiers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

// The longest string that a database takes, in bytes.
inline constexpr std::size_t kMaxValueSize = 1000000000;

// Every string may hold any bytes.
struct TagRecord {
    std::int32_t tag = 0;  // note_tags.h
    std::string text;
    std::optional<std::string> json;  // JSON text; what is not JSON counts as absent
    std::int64_t timestamp = 0;       // seconds since the Unix epoch
};

struct NoteRecord {
    std::string uuid;  // not empty; names the note within its book
    std::vector<TagRecord> tags;
};

struct BookRecord {
    std::string fastHash;  // not empty; names the book
    std::string title;
    std::string path;  // of the book's file
    std::vector<NoteRecord> notes;
};

// What incoming records do to the title, author and path of a book that a database has:
// replace all of them, or fill in those that are empty.
enum class OnKnownBook { Overwrite, FillEmpty };

}  // namespace host
