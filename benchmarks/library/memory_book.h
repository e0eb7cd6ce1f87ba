// A device in memory with one book of sample notes.
#pragma once

#include <cstddef>
#include <vector>

#include "memory_device.h"
#include "utilities/note.h"

inline constexpr char kBook[] = "626f6f6b";

using RecordedNotes = std::vector<veloran::utilities::Note>;

// Sets the number of the book's notes, which are the only ones on the device.
void setNoteCount(std::size_t count);

// Sets one note, and returns it for changes.
memory::StoredNote& onlyNote();

// Returns the book's notes as an export fetches them.
RecordedNotes fetchedNotes();
