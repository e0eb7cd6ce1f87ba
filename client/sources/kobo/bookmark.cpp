#include "client/sources/kobo/bookmark.h"

#include <iterator>
#include <vector>

namespace client {
namespace {

struct TextColumn {
    const char* name;
    std::string KoboBookmark::*text;
};

constexpr TextColumn kTextColumns[] = {
    {"BookmarkID", &KoboBookmark::id},       {"VolumeID", &KoboBookmark::volume},
    {"ContentID", &KoboBookmark::content},   {"StartContainerPath", &KoboBookmark::path},
    {"Text", &KoboBookmark::text},           {"Annotation", &KoboBookmark::annotation},
    {"DateCreated", &KoboBookmark::created}, {"DateModified", &KoboBookmark::modified},
    {"Hidden", &KoboBookmark::hidden},       {"UUID", &KoboBookmark::uuid},
    {"Type", &KoboBookmark::type},           {"Color", &KoboBookmark::color}};

std::vector<const char*> columnNames() {
    std::vector<const char*> names;
    names.reserve(std::size(kTextColumns) + 2);
    for (const TextColumn& column : kTextColumns) {
        names.push_back(column.name);
    }
    names.insert(names.end(), {"StartOffset", "ChapterProgress"});
    return names;
}

}  // namespace

KoboBookmarks::KoboBookmarks(SQLite::Database& database, ReadLimit& limit)
    : rows_(database, "Bookmark", columnNames(), limit) {}

bool KoboBookmarks::next(KoboBookmark& bookmark) {
    if (!rows_.next()) {
        return false;
    }
    int index = 0;
    for (const TextColumn& column : kTextColumns) {
        bookmark.*column.text = rows_.column(index++).getString();
    }
    bookmark.offset = rows_.column(index++).getInt64();
    bookmark.progress = rows_.column(index).getDouble();
    return true;
}

}  // namespace client
