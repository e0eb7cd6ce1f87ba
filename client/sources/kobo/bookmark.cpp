#include "client/sources/kobo/bookmark.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <tuple>
#include <vector>

#include "client/sources/kobo/rows.h"

namespace client {
namespace {

struct TextColumn {
    const char* name;
    std::string KoboBookmark::*text;
};

constexpr TextColumn kTextColumns[] = {{"BookmarkID", &KoboBookmark::id},
                                       {"VolumeID", &KoboBookmark::volume},
                                       {"ContentID", &KoboBookmark::chapter},
                                       {"Text", &KoboBookmark::text},
                                       {"Annotation", &KoboBookmark::annotation},
                                       {"DateCreated", &KoboBookmark::created},
                                       {"DateModified", &KoboBookmark::modified},
                                       {"Hidden", &KoboBookmark::hidden},
                                       {"UUID", &KoboBookmark::uuid},
                                       {"Type", &KoboBookmark::type},
                                       {"Color", &KoboBookmark::color}};

std::vector<const char*> columnNames() {
    std::vector<const char*> names;
    names.reserve(std::size(kTextColumns) + 1);
    for (const TextColumn& column : kTextColumns) {
        names.push_back(column.name);
    }
    names.push_back("ChapterProgress");
    return names;
}

}  // namespace

// Writes each text after its size and a colon.
WaitingBookmark::WaitingBookmark(const KoboBookmark& bookmark, std::int64_t chapter,
                                 double progress)
    : chapter_(chapter), progress_(progress) {
    for (const TextColumn& column : kTextColumns) {
        const std::string& text = bookmark.*column.text;
        texts_.append(std::to_string(text.size())).append(":").append(text);
    }
    texts_.shrink_to_fit();
}

KoboBookmark WaitingBookmark::bookmark() const {
    KoboBookmark bookmark;
    const char* next = texts_.data();
    for (const TextColumn& column : kTextColumns) {
        std::size_t size = 0;
        next = std::from_chars(next, texts_.data() + texts_.size(), size).ptr + 1;
        (bookmark.*column.text).assign(next, size);
        next += size;
    }
    return bookmark;
}

bool WaitingBookmark::operator<(const WaitingBookmark& other) const {
    return std::tie(chapter_, progress_) < std::tie(other.chapter_, other.progress_);
}

std::deque<WaitingBookmark> readBookmarks(SQLite::Database& database,
                                          const KoboContents& contents, ReadLimit& limit) {
    std::deque<WaitingBookmark> bookmarks;
    for (KoboRows rows(database, "Bookmark", columnNames(), limit); rows.next();) {
        KoboBookmark bookmark;
        int index = 0;
        for (const TextColumn& column : kTextColumns) {
            bookmark.*column.text = rows.column(index++).getString();
        }
        bookmarks.emplace_back(bookmark, contents.chapterIndex(bookmark.chapter),
                               rows.column(index).getDouble());
    }
    std::stable_sort(bookmarks.begin(), bookmarks.end());
    return bookmarks;
}

}  // namespace client
