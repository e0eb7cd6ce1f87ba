// The second line of a record of a clippings file: kind, place and time.
#pragma once

#include <optional>
#include <string_view>

#include "client/sources/clippings/clipping.h"

namespace client {

// Returns a clipping without title and text, and in an unknown language without kind;
// nullopt if the line does not start with a dash.
std::optional<Clipping> parseDetails(std::string_view line);

}  // namespace client
