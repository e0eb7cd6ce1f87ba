// Books and notes for exchange between databases, without row identifiers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace host {

// The longest string that a database can store, in bytes.
inline constexpr std::size_t kMaxValueSize = 1000000000;

// Every string may hold any bytes.
struct TagRecord {
    std::int32_t tag = 0;  // note_tags.h
    std::string text;
    std::optional<std::string> json;  // JSON text; ignored if it is not valid
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

// The effect of records on a known book: replace its title, author and path by those that
// are not empty, or fill in the empty ones.
enum class OnKnownBook { Overwrite, FillEmpty };

}  // namespace host
