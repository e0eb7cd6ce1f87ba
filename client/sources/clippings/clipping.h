// One record of a clippings file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
    std::optional<ClippingKind> kind = {};
    std::optional<ClippingRange> page = {};  // nullopt also for Roman numerals
    std::optional<ClippingRange> location = {};
    Note note = {};                // text and time
    bool hasLimitMessage = false;  // instead of the passage
};

// Reads the lines of one record, without the line that ends it. Returns nullopt if they are
// not a record.
std::optional<Clipping> parseClipping(const std::vector<std::string_view>& lines);

// Returns a clipping without title and text, and if the language is unknown also without
// kind; nullopt if the line does not start with a dash.
std::optional<Clipping> parseDetails(std::string_view line);

}  // namespace client
