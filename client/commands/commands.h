// The client's commands. Each prints its results on standard output, one a line unless it
// says otherwise, and reports what went wrong as an exception. Those for several things
// report each failure on standard error and go on, and throw FailuresReported at the end.
#pragma once

#include <string>
#include <vector>

#include "client/collection/note_filter.h"
#include "client/listings/listing.h"
#include "client/pages/export_request.h"

// Puts the books and notes of each file on the device. Prints how many notes were added or
// changed, and the file's name when there are several.
void loadAll(const std::vector<std::string>& files);

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

// Exports each book's notes and prints the path of each page that it writes.
void exportNotes(const ExportRequest& request);

// Prints the path of the page that an export would write; of the request, only the one book
// and the folders count.
void printName(const ExportRequest& request);

// Imports each exported file. Prints the same as loadAll.
void importAll(const std::vector<std::string>& files);
