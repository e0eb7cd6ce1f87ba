// The second line of a record of a clippings file: what it is, where, and when.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "client/sources/clippings/clipping.h"

struct ClippingDetails {
    std::optional<ClippingKind> kind;  // nothing in a language that is not known
    std::optional<ClippingRange> page;
    std::optional<ClippingRange> location;
    std::int64_t timestamp = 0;  // 0: unknown
};

// Nothing when the line is none, that is, does not start with a dash.
std::optional<ClippingDetails> parseDetails(std::string_view line);
