// One note in the file that describes a device's content.
#pragma once

#include <json/value.h>

#include <filesystem>
#include <string>

#include "store/records.h"

// Reads the note that stands at `place`, and the picture that it names, which is found
// relative to `folder`. What is wrong with it is a Complaint.
host::NoteRecord readNote(const Json::Value& json, const std::string& place,
                          const std::filesystem::path& folder);
