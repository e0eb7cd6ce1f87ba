// The file that describes a device's content: its books, their notes and the style sheet.
#pragma once

#include <string>
#include <string_view>

#include "client/sources/source.h"

// Whether it is a JSON object.
bool isDeviceFile(std::string_view start);

// Reads also the pictures and the style sheet that the file names, which it finds relative
// to its own folder. Anything missing, misspelt, of the wrong type or there twice is a
// Complaint that says where.
SourceContent readDeviceFile(const std::string& path);
