// The bookmarks of a Kobo reader's database.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <deque>
#include <string>

#include "client/sources/kobo/contents.h"
#include "client/sources/kobo/read_limit.h"

namespace client {

struct KoboBookmark {
    std::string id;
    std::string volume;   // identifier of the book
    std::string chapter;  // identifier of the content that it is in
    std::string text;
    std::string annotation;
    std::string created;
    std::string modified;
    std::string hidden;
    std::string uuid;
    std::string type;
    std::string color;
};

// A bookmark that waits, in little memory, until all are sorted.
class WaitingBookmark {
public:
    WaitingBookmark(const KoboBookmark& bookmark, std::int64_t chapter, double progress);

    KoboBookmark bookmark() const;

    // Compares the positions in the book.
    bool operator<(const WaitingBookmark& other) const;

private:
    std::int64_t chapter_;  // its index
    double progress_;       // within the chapter
    std::string texts_;
};

// Returns all bookmarks, in the order of the chapters, then of the progress within them.
// Columns that are missing in older firmware are empty.
std::deque<WaitingBookmark> readBookmarks(SQLite::Database& database,
                                          const KoboContents& contents, ReadLimit& limit);

}  // namespace client
