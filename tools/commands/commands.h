// The client's commands. Each prints its results on standard output, one a line unless it
// says otherwise, and reports what went wrong as an exception.
#pragma once

#include <string>
#include <vector>

// Puts the books, notes and style sheet of a device file on the device. Prints how many
// notes were added or changed.
void load(const std::string& file);

enum class Format { Lines, Json };

// Prints every book: in lines its hash, title and author, separated by tabs, or in one JSON
// array all that is known of it.
void listBooks(Format format);

// Prints every note of the book: in lines its identifier, page, colour and text, separated
// by tabs, or in one JSON array all fields, of the picture its size in bytes.
void listNotes(const std::string& hash, Format format);

struct ExportRequest {
    std::string hash;
    std::vector<unsigned long long> noteIds;  // empty: every note
    std::string order;                        // "id" or "newest"; else by page
    std::string directory;                    // for the file; empty: the device's own
    std::string deviceFolder;  // what a relative path that is printed is relative to
};

// Exports the book's notes and prints the path of the file.
void exportNotes(const ExportRequest& request);

// Prints the path of the file that an export would write; of the request, only the book,
// the folders count.
void printName(const ExportRequest& request);

// Imports an exported file. Prints how many notes were added or changed.
void importNotes(const std::string& file);
