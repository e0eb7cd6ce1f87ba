// What the listing commands print on standard output: as lines for people and as JSON for
// programs.
#pragma once

#include <string>
#include <vector>

#include "utilities/note.h"

struct ListedBook {
    std::string hash;
    std::string title;
    std::string author;
    std::string path;  // of the book's file
};

using Books = std::vector<ListedBook>;
using Notes = std::vector<veloran::utilities::Note>;

// One line for each, its fields separated by tabs.
void printLines(const Books& books);
void printLines(const Notes& notes);

// One array on one line, with an object for each. Bytes that are not UTF-8 become U+FFFD.
void printJson(const Books& books);
void printJson(const Notes& notes);
