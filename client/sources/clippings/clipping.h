// One record of a clippings file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "client/collection/note.h"

namespace client {

enum class ClippingKind { Highlight, Note, Bookmark, Article };

struct ClippingRange {
    std::int64_t first = 0;
    std::int64_t last = 0;  // not before the first
};

struct Clipping {
    std::string title = {};
    std::string author = {};
    // The bytes of title and author in the file, if their line is not UTF-8; else empty.
    std::string rawTitle = {};
    std::string rawAuthor = {};
    std::optional<ClippingKind> kind = {};
    std::optional<ClippingRange> page = {};  // nullopt also for Roman numerals
    std::optional<ClippingRange> location = {};
    Note note = {};                // text and time
    bool hasLimitMessage = false;  // instead of the passage
    // The time for its uuid; 0 for Korean dates, which version 1.1 could not read.
    std::int64_t identityTime = 0;
};

// Reads the lines of one record, without the line that ends it. Returns nullopt if they are
// not a record. A line that is not UTF-8 is read as Windows-1252, whatever the others are,
// so that a record is the same after the file has grown.
std::optional<Clipping> parseClipping(std::string_view record);

// Returns a clipping without title and text, and if the language is unknown also without
// kind; nullopt if the line does not start with a dash.
std::optional<Clipping> parseDetails(std::string_view line);

// Returns whether the line can only be the second line of a record: it has a kind, and a
// place or a time.
bool isDetails(std::string_view line);

}  // namespace client
