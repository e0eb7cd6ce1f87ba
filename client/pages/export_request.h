// What an export is to write, and where.
#pragma once

#include <string>
#include <vector>

#include "client/collection/note_filter.h"

struct ExportRequest {
    std::vector<std::string> books;  // as someone typed them; empty: all books
    NoteFilter filter;
    std::string order;      // "id" or "newest"; else by page
    std::string directory;  // for the pages; empty: the device's own
    std::string file;       // of the one page; empty: it is named after the book
    bool update = false;    // pages that the folder has already are left alone or replaced
    std::string deviceFolder;  // what a relative path that is printed is relative to
};
