// Names for the colours of annotations.
#pragma once

#include <string>

namespace client {

// Returns the name of the named colour nearest to "#rrggbb"; other texts unchanged.
std::string colorNamed(const std::string& text);

}  // namespace client
