// The device that the timing platform answers from: it costs as little as a platform can,
// so that what is timed is the library's own work.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "sample_notes.h"
#include "utilities/note.h"

namespace timing_platform {

struct Device {
    std::vector<SampleNote> notes = sampleNotes();  // repeated as often as need be
    std::vector<std::string> positions;             // one for each note of the one book
    std::string payload = {};                       // of the dump
    std::size_t takenNames = 0;                     // how many file names are taken
};

inline Device& device() {
    static Device instance;
    return instance;
}

// Makes it a device of a book with that many notes, and nothing else.
void setNoteCount(std::size_t count);

// The book's notes as getNote fetches them.
std::vector<veloran::utilities::Note> fetchedNotes();

}  // namespace timing_platform
