// The colours of annotations, by name.
#pragma once

#include <string>

namespace client {

// Returns for "#rrggbb" the name of the nearest colour that has one, else the text.
std::string colorNamed(const std::string& text);

}  // namespace client
