// The bookmarks of a Kobo reader's database.
#pragma once

#include <cstdint>
#include <string>

#include "client/sources/kobo/rows.h"

namespace client {

struct KoboBookmark {
    std::string id;
    std::string volume;   // identifier of the book
    std::string content;  // identifier of the chapter
    std::string path;     // of the element where it starts
    std::string text;
    std::string annotation;
    std::string created;
    std::string modified;
    std::string hidden;
    std::string uuid;
    std::string type;
    std::string color;
    std::int64_t offset = 0;  // in the element
    double progress = 0;      // from 0 to 1, in the chapter or in the book
};

// The rows of bookmarks. Columns that are missing in older firmware are empty.
class KoboBookmarks {
public:
    KoboBookmarks(SQLite::Database& database, ReadLimit& limit);

    // Reads the next bookmark; returns false at the end.
    bool next(KoboBookmark& bookmark);

private:
    KoboRows rows_;
};

}  // namespace client
