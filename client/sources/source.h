// The kinds of files that notes come in.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/sources/content/skipped_records.h"
#include "store/records.h"

struct SourceBook {
    host::BookRecord record;  // an empty title or path: the file names none
    std::string author;       // empty: the file names none
};

// What a file holds. No two books have one hash, no two notes of a book one uuid.
struct SourceContent {
    std::vector<SourceBook> books;
    std::optional<std::string> styleSheet = {};  // text, for the whole device
    host::KnownBooks knownBooks = host::KnownBooks::Complete;
    SkippedRecords skipped = {};  // what could not be read, although the rest could
};

struct Source {
    const char* name;  // of one such file, in messages: "a device file"

    // Whether a file is of this kind, by the start of its content: 64 KiB, or all of it.
    bool (*recognises)(std::string_view start);

    // Reads the whole file. What is wrong with the file is a Complaint that names it and
    // the place; what is wrong with one record is skipped and noted.
    SourceContent (*read)(const std::string& path);
};

// Recognises the file at `path` and reads it. Complains about an unknown kind of file.
SourceContent readSource(const std::string& path);
