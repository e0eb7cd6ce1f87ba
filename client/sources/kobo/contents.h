// The books and chapters of a Kobo reader's database.
#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <cstdint>
#include <map>
#include <string>
#include <unordered_map>

#include "client/collection/note.h"
#include "client/sources/kobo/bookmark.h"
#include "client/sources/kobo/rows.h"

namespace client {

struct KoboBook {
    std::string title;
    std::string author;
};

struct KoboChapter {
    std::int64_t index;  // within its book
    std::string title;
};

class KoboContents {
public:
    KoboContents(SQLite::Database& database, ReadLimit& limit);

    // Returns null if the database has no such book.
    const KoboBook* book(const std::string& id) const;

    // Returns the title of the chapter, and an order by chapter, progress, numbers of the
    // path, offset and time. Empty if the bookmark names no part of the book.
    Place placeOf(const KoboBookmark& bookmark) const;

private:
    using Chapters =
        std::map<std::string, KoboChapter>;  // by key of the file: "BOOK#part.html"

    static void add(Chapters& chapters, const std::string& id, const KoboChapter& chapter);
    void addHeadings(const Chapters& headings);
    Chapters::const_iterator chapterOf(const KoboBookmark& bookmark) const;
    std::string keyOfChapter(const KoboBookmark& bookmark,
                             Chapters::const_iterator chapter) const;

    std::unordered_map<std::string, KoboBook> books_;
    Chapters chapters_;
};

}  // namespace client
