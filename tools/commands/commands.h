// The client's commands. Each prints its results on standard output, one a line unless it
// says otherwise, and reports what went wrong as an exception.
#pragma once

#include <string>
#include <vector>

#include "device/note_filter.h"
#include "listings/listing.h"

// Puts the books, notes and style sheet of a device file on the device. Prints how many
// notes were added or changed.
void load(const std::string& file);

// Prints every book, in lines its hash, title and author, separated by tabs.
void listBooks(const ListingFormat& format);

struct NotesRequest {
    std::vector<std::string> books;  // as they were typed; empty: all on the device
    NoteFilter filter;
    const ListingFormat* format = &kLineFormat;
    FolderForPictures pictures;
};

// Prints the selected notes of the books, in lines their identifier, page, colour and text,
// separated by tabs; with several books, the hash of their book comes first.
void listNotes(const NotesRequest& request);

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
