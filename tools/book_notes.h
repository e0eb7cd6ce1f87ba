// The notes of a book on the device.
#pragma once

#include <string>
#include <vector>

#include "utilities/note.h"

// A Complaint when the device does not know the book, with what to do about it.
[[noreturn]] void complainAboutUnknownBook(const std::string& hash);

// All notes of the book, in the database's order. Complains about an unknown book.
std::vector<veloran::utilities::Note> notesOf(const std::string& hash);
