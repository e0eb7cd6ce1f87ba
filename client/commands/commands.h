// The client's commands. Each prints its results on standard output, one a line unless it
// says otherwise, and throws an exception for a failure. Those for several things
// report each failure on standard error and go on, and throw FailuresReported at the end.
#pragma once

#include <string>
#include <vector>

#include "client/collection/note_filter.h"
#include "client/collection/note_order.h"
#include "client/listings/listing.h"
#include "client/pages/page_export.h"

namespace client {

struct LoadRequest {
    std::vector<std::string> files;
    std::string pages;             // folder; empty: none are exported
    std::string displayRoot = {};  // the folder that a printed relative path starts from
};

// Puts the books and notes of each file into the collection, then brings the pages of all
// books up to date, also if some files have failed. Prints how many notes were added or
// changed, with the file's name if there are several, and the path of each page.
void load(const LoadRequest& request);

// Prints every book, in lines its hash, title and author, separated by tabs.
void listBooks(const ListingFormat& format);

struct NotesRequest {
    std::vector<std::string> books;  // as they were typed; empty: all of the collection
    NoteFilter filter;
    NoteOrder order = NoteOrder::Reading;
    const ListingFormat* format = &kLineFormat;
    FolderForPictures pictures;
};

// Prints the selected notes of the books, in lines their identifier, place, colour and
// text, separated by tabs; with several books, the hash of their book comes first.
void listNotes(const NotesRequest& request);

struct ExportRequest {
    std::vector<std::string> books = {};  // as they were typed; empty: all books
    NoteFilter filter = {};
    NoteOrder order = NoteOrder::Reading;
    PageTarget target = {};
};

// Brings each book's page up to date and prints its path.
void exportNotes(const ExportRequest& request);

// Prints the path that an export of the book would write to; of the target, only the
// directory counts.
void printName(const std::string& typed, const PageTarget& target);

// Imports each exported file. Prints the same as load.
void importAll(const std::vector<std::string>& files);

}  // namespace client
