// The conditions that select notes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "client/collection/note.h"

namespace client {

// A note is selected if it meets every condition that is set.
struct NoteFilter {
    std::vector<unsigned long long> ids;  // its identifier is one of these
    std::vector<std::string> colors;      // its colour is one of these; "" for none
    std::optional<std::int64_t> since;    // it was made then (Unix time) or later
    std::optional<std::string> match;     // its text or its comment contains this
    std::vector<std::string> kinds = {};  // its kind (note.h) is one of these

    // Both case-fold their argument (case_folding.h).
    void addColor(const std::string& color);
    void setMatch(const std::string& text);

    // Returns true if no condition is set, so that every note is selected.
    bool isEmpty() const;

    bool selects(const Note& note) const;

    // Returns false if no note with this identifier is selected.
    bool selectsId(unsigned long long id) const;
};

}  // namespace client
