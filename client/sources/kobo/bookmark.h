// The bookmarks and books in a Kobo reader's database.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

namespace client {

struct KoboBookmark {
    std::string id;
    std::string volume;   // identifier of the book
    std::string chapter;  // identifier of the content that it is in
    std::string text;
    std::string annotation;
    std::string created;
    std::string modified;
    double progress = 0;  // within the chapter
    std::string hidden;
    std::string uuid;
    std::string type;
    std::string color;
};

// Returns all bookmarks, unordered. Columns that are missing in older firmware are empty.
std::vector<KoboBookmark> readBookmarks(SQLite::Database& database);

struct KoboContent {
    std::string title;
    std::string author;
    std::int64_t index = 0;  // of a chapter within its book
};

// Books and chapters, by identifier.
using KoboContents = std::unordered_map<std::string, KoboContent>;
KoboContents readContents(SQLite::Database& database);

}  // namespace client
