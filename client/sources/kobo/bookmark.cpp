#include "client/sources/kobo/bookmark.h"

#include <set>

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

// The columns in the order of `wanted`, and nothing for those that the table lacks.
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

}  // namespace

std::vector<KoboBookmark> readBookmarks(SQLite::Database& database) {
    SQLite::Statement rows(
        database, selection(database, "Bookmark",
                            {"BookmarkID", "VolumeID", "ContentID", "Text", "Annotation",
                             "DateCreated", "DateModified", "Hidden", "UUID", "Type",
                             "Color", "ChapterProgress"}));
    std::vector<KoboBookmark> bookmarks;
    while (rows.executeStep()) {
        KoboBookmark& bookmark = bookmarks.emplace_back();
        int column = 0;
        for (std::string* text :
             {&bookmark.id, &bookmark.volume, &bookmark.chapter, &bookmark.text,
              &bookmark.annotation, &bookmark.created, &bookmark.modified, &bookmark.hidden,
              &bookmark.uuid, &bookmark.type, &bookmark.color}) {
            *text = rows.getColumn(column++).getString();
        }
        bookmark.progress = rows.getColumn(column).getDouble();
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
