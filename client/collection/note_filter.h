// Which notes a command is about.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "utilities/note.h"

// A note is selected when it meets every condition that is set.
struct NoteFilter {
    std::vector<unsigned long long> ids;  // its identifier is one of these
    std::vector<std::string> colors;      // its colour is one of these; "": it has none
    std::optional<std::int64_t> since;    // it was made then (Unix time) or later
    std::string match;                    // its text or its comment holds this

    // Whether no condition is set, so that every note is selected.
    bool isEmpty() const;

    // Colours and text are compared as folded.h makes them.
    bool selects(const veloran::utilities::Note& note) const;
};
