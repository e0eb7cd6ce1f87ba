// The device in memory, with one book of the sample notes.
#pragma once

#include <cstddef>
#include <vector>

#include "memory_device.h"
#include "utilities/note.h"

inline constexpr char kBook[] = "626f6f6b";

using RecordedNotes = std::vector<veloran::utilities::Note>;

// Gives the book that many notes. They are the device's only ones.
void setNoteCount(std::size_t count);

// Gives the book one note, whose contents the caller may replace.
memory::StoredNote& onlyNote();

// The book's notes as an export fetches them.
RecordedNotes fetchedNotes();
