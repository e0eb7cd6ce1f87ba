// The colours of annotations, by name.
#pragma once

#include <string>

// Of "#rrggbb" the name of the nearest colour that has one; any other text stays.
std::string colorNamed(const std::string& text);
