// The books and chapters of a Kobo reader's database.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <string>
#include <unordered_map>

#include "client/sources/kobo/read_limit.h"

namespace client {

struct KoboBook {
    std::string title;
    std::string author;
};

class KoboContents {
public:
    KoboContents(SQLite::Database& database, ReadLimit& limit);

    // Returns null if the database has no such book.
    const KoboBook* book(const std::string& id) const;

    // Returns the chapter's number within its book, or 0. Ignores the part after a "#",
    // which is a position in the chapter.
    std::int64_t chapterIndex(const std::string& id) const;

private:
    struct Chapter {
        std::int64_t index = 0;
        int type = 0;
    };

    void addChapter(const std::string& id, const Chapter& chapter);

    std::unordered_map<std::string, KoboBook> books_;
    std::unordered_map<std::string, Chapter> chapters_;
};

}  // namespace client
