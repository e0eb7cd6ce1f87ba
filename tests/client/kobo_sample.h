// SQL for the database of a Kobo reader with one book and some bookmarks, which are
// changed.
#pragma once

#include <string>

// Each of `changes` is a SET clause for a bookmark of its own.
inline std::string koboDatabase(std::initializer_list<const char*> changes) {
    std::string sql = R"(CREATE TABLE Bookmark (BookmarkID, VolumeID, ContentID, Text,
            Annotation, DateCreated, DateModified, ChapterProgress, Hidden, UUID, Type, Color,
            StartContainerPath, StartOffset);
        CREATE TABLE content (ContentID, ContentType, Title, Attribution, VolumeIndex,
            ChapterIDBookmarked);
        INSERT INTO content VALUES ('v', 6, 'Emma', 'Jane Austen', -1, NULL),
            ('v!1', 9, 'Chapter 1', NULL, 1, NULL), ('v!2', 9, 'Chapter 2', NULL, 2, NULL),
            ('v!7', 9, 'Seven', NULL, NULL, NULL), ('v!20', 9, 'Twenty', NULL, NULL, NULL),
            ('v#(1)a/cover.html', 9, 'Cover', NULL, 0, NULL),
            ('v#(3)a/x3.html', 9, 'Chapter 3', NULL, 3, NULL),
            ('v#(10)a/x10.html', 9, 'Chapter 10', NULL, 10, NULL),
            ('v!!a/9.xhtml', 9, 'a/9.xhtml', NULL, 9, NULL),
            ('v!!a/9.xhtml-2', 899, 'Part', NULL, 21, 'v!!a/9.xhtml'),
            ('v!!a/9.xhtml-1', 899, 'Chapter 9', NULL, 20, 'v!!a/9.xhtml');)";
    for (const char* change : changes) {
        sql += R"(INSERT INTO Bookmark VALUES ('b', 'v', 'v!1', 'a', NULL,
            '2024-01-15T14:30:00.000', NULL, 0.5, 'false', 'u', 'highlight', 0, NULL, NULL);
            UPDATE Bookmark SET )";
        sql.append(change).append(" WHERE rowid = last_insert_rowid();");
    }
    return sql;
}
