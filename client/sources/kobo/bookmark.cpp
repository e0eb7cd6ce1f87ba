#include "client/sources/kobo/bookmark.h"

#include <set>

namespace client {
namespace {

std::set<std::string> columnsOf(SQLite::Database& database, const std::string& table) {
    std::set<std::string> names;
    SQLite::Statement rows(database, "SELECT name FROM pragma_table_info(?)");
    rows.bind(1, table);
    while (rows.executeStep()) {
        names.insert(rows.getColumn(0).getString());
    }
    return names;
}

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

// Returns a query for these columns, with NULL for missing ones.
std::string selection(SQLite::Database& database, const std::string& table,
                      const std::vector<const char*>& wanted) {
    const std::set<std::string> columns = columnsOf(database, table);
    std::string text = "SELECT ";
    const char* separator = "";
    for (const char* name : wanted) {
        text.append(separator).append(columns.count(name) > 0 ? name : "NULL");
        separator = ", ";
    }
    return text + " FROM " + table;
}

std::string bookmarkQuery(SQLite::Database& database) {
    std::vector<const char*> names;
    for (const TextColumn& column : kTextColumns) {
        names.push_back(column.name);
    }
    names.push_back("ChapterProgress");
    return selection(database, "Bookmark", names);
}

}  // namespace

std::vector<KoboBookmark> readBookmarks(SQLite::Database& database) {
    SQLite::Statement rows(database, bookmarkQuery(database));
    std::vector<KoboBookmark> bookmarks;
    while (rows.executeStep()) {
        KoboBookmark& bookmark = bookmarks.emplace_back();
        int index = 0;
        for (const TextColumn& column : kTextColumns) {
            bookmark.*column.text = rows.getColumn(index++).getString();
        }
        bookmark.progress = rows.getColumn(index).getDouble();
    }
    return bookmarks;
}

KoboContents readContents(SQLite::Database& database) {
    SQLite::Statement rows(
        database, selection(database, "content",
                            {"ContentID", "Title", "Attribution", "VolumeIndex"}) +
                      " WHERE ContentType IN (6, 9, 899) ORDER BY ContentType DESC");
    KoboContents contents;
    while (rows.executeStep()) {
        contents[rows.getColumn(0).getString()] = {rows.getColumn(1).getString(),
                                                   rows.getColumn(2).getString(),
                                                   rows.getColumn(3).getInt64()};
    }
    return contents;
}

}  // namespace client
