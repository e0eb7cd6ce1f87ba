// The notes of a book on the device.
#pragma once

#include <string>
#include <vector>

#include "utilities/note.h"

// What to say of a book that the device does not know.
[[noreturn]] void complainAboutUnknownBook(const std::string& hash);
void complainUnlessKnown(const std::string& hash);

// All notes of the book, in the database's order. Complains about an unknown book.
std::vector<veloran::utilities::Note> notesOf(const std::string& hash);
