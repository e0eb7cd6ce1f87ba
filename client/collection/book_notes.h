// The notes of a book on the device.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "utilities/note.h"

// All notes of the book, in the database's order.
std::vector<veloran::utilities::Note> notesOf(const std::string& hash);

// The page that the note is on; nothing when its position names none.
std::optional<double> pageOf(const veloran::utilities::Note& note);

// When the note was made, as iso_time.h writes it; empty when nobody knows.
std::string timeOf(const veloran::utilities::Note& note);
