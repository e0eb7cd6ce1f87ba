// SQL for the database of a Kobo reader with one book and one bookmark, which is changed.
#pragma once

#include <string>

// Each of `changes` is a SET clause for a bookmark of its own.
inline std::string koboDatabase(std::initializer_list<const char*> changes) {
    std::string sql = R"(CREATE TABLE Bookmark (BookmarkID, VolumeID, ContentID, Text,
            Annotation, DateCreated, DateModified, ChapterProgress, Hidden, UUID, Type, Color);
        CREATE TABLE content (ContentID, ContentType, Title, Attribution, VolumeIndex);
        INSERT INTO content VALUES ('v', 6, 'Emma', 'Jane Austen', -1),
            ('v!1', 9, 'Chapter 1', NULL, 1), ('v!2', 9, 'Chapter 2', NULL, 2);)";
    for (const char* change : changes) {
        sql += R"(INSERT INTO Bookmark VALUES ('b', 'v', 'v!1', 'a', NULL,
            '2024-01-15T14:30:00.000', NULL, 0.5, 'false', 'u', 'highlight', 0);
            UPDATE Bookmark SET )";
        sql.append(change).append(" WHERE rowid = last_insert_rowid();");
    }
    return sql;
}
