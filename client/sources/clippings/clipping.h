// One record of a clippings file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

enum class ClippingKind { Highlight, Note, Bookmark, Article };

struct ClippingRange {
    std::int64_t first = 0;
    std::int64_t last = 0;  // not before the first
};

struct Clipping {
    std::string title;
    std::string author;
    ClippingKind kind = ClippingKind::Highlight;
    std::optional<ClippingRange> page;  // nothing for Roman numerals, too
    std::optional<ClippingRange> location;
    std::int64_t timestamp = 0;  // 0: unknown
    std::string text;
    bool hasLimitMessage = false;  // in place of the passage
};

// Reads the lines of one record, without the line that ends it. Nothing when they are no
// record.
std::optional<Clipping> parseClipping(const std::vector<std::string_view>& lines);
