// A note as the sources have it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "store/records.h"

struct SourceNote {
    std::string uuid;            // not empty
    std::optional<double> page;  // finite
    std::string color;
    std::string text;     // U+2029 ends a paragraph, U+2028 and line feeds break lines
    std::string comment;  // the same
    std::string image;    // the picture's bytes
    std::int64_t timestamp = 0;
    std::int64_t commentTimestamp = 0;  // counts only when it is later
};

// The record of the note in the reader database.
host::NoteRecord noteRecord(SourceNote note);
