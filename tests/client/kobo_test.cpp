// Databases of Kobo readers, of any firmware.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cases.h"
#include "client/collection/position.h"
#include "kobo_sample.h"
#include "sample_source.h"

namespace {

TEST(KoboBookmark, BecomesNote) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"highlight", "Color = 0", "u||yellow|a|||2024-01-15T14:30:00Z\n"},
        {"pink", "Color = 1", "u||pink|a|||2024-01-15T14:30:00Z\n"},
        {"blue", "Color = '2'", "u||blue|a|||2024-01-15T14:30:00Z\n"},
        {"green", "Color = 3", "u||green|a|||2024-01-15T14:30:00Z\n"},
        {"grey", "Color = 4", "u||grey|a|||2024-01-15T14:30:00Z\n"},
        {"unknown colour", "Color = 5", "u|||a|||2024-01-15T14:30:00Z\n"},
        {"comment", "Annotation = 'b'", "u||yellow|a|b||2024-01-15T14:30:00Z\n"},
        {"bookmark", "Type = 'dogear', Text = NULL", "u||yellow||||2024-01-15T14:30:00Z\n"},
        {"white space around", "Text = char(10, 9) || ' a  b' || char(13)",
         "u||yellow|a  b|||2024-01-15T14:30:00Z\n"},
        {"changed", "DateModified = '2024-02-01T08:00:00Z'",
         "u||yellow|a|||2024-02-01T08:00:00Z\n"},
        {"time of change that cannot be read", "DateModified = 'today'",
         "u||yellow|a|||2024-01-15T14:30:00Z\n"},
        {"no time", "DateCreated = 'today'", "u||yellow|a|||\n"},
        {"handwriting", "Type = 'markup', BookmarkID = 'm'",
         "u||yellow|a||jpeg|2024-01-15T14:30:00Z\n"},
        {"handwriting without its picture", "Type = 'markup'",
         "u||yellow|a|||2024-01-15T14:30:00Z\n"},
        {"handwriting elsewhere", "Type = 'markup', BookmarkID = '../m'",
         "u||yellow|a|||2024-01-15T14:30:00Z\n"},
        {"picture of another kind", "BookmarkID = 'm'",
         "u||yellow|a|||2024-01-15T14:30:00Z\n"},
        {"hidden", "Hidden = 'true'", ""},
        {"hidden as a number", "Hidden = 1", ""},
    };
    writeFile("markups/m.jpg", "jpeg");
    writeFile("m.jpg", "another");
    expectEach(cases, [](const std::string& change) {
        return shownNotes(koboDatabase({change.c_str()}));
    });
}

// Returns the place that a collection stores for the bookmark.
client::Place storedPlace(const std::string& change) {
    const client::SourceContent content = readSample(koboDatabase({change.c_str()}));
    const client::Note note = *content.books.at(0).notes.begin();
    return client::placeAt(client::positionOf(note.place));
}

TEST(KoboBookmark, HasChapter) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"its file's", "ContentID = 'v!1'", "Chapter 1"},
        {"a position in its file", "ContentID = 'v!2#p2'", "Chapter 2"},
        {"the first heading of its file", "ContentID = 'v!!a/9.xhtml'", "Chapter 9"},
        {"of the path's file",
         "ContentID = 'v#(1)a/cover.html', StartContainerPath = 'a/x10.html#point(/1/4:0)'",
         "Chapter 10"},
        {"of the file before the path's",
         "ContentID = 'v#(1)a/cover.html', StartContainerPath = 'a/x3_2.html#point(/1)'",
         "Chapter 3"},
        {"of the file before the path's, by number",
         "StartContainerPath = 'a/x30.html#point(/1)'", "Chapter 10"},
        {"a path into another folder",
         "ContentID = 'v#(1)a/cover.html', StartContainerPath = 'b/x3.html#point(/1)'",
         "Cover"},
        {"unknown", "ContentID = 'v!3'", ""},
    };
    expectEach(cases,
               [](const std::string& change) { return storedPlace(change).chapter; });
}

TEST(KoboBookmark, FollowsThoseBeforeItInTheBook) {
    const ScratchDirectory scratch;
    const std::string longPath =
        "StartContainerPath = replace(hex(zeroblob(900)), '00', '.12'), ChapterProgress = "
        "0, "
        "ContentID = 'x' || StartContainerPath, StartOffset = ";
    const NamedCase cases[] = {
        {"chapters", "ContentID = 'v!2'",
         "ContentID = 'v!!a/9.xhtml', ChapterProgress = 0"},
        {"chapters of paths", "StartContainerPath = 'a/x3.html#point(/1)'",
         "StartContainerPath = 'a/x10.html#point(/1)', ChapterProgress = 0"},
        {"an unknown chapter", "ContentID = 'v!2'", "ContentID = 'v!1.2'"},
        {"chapters without a number", "ContentID = 'v!7'",
         "ContentID = 'v!20', ChapterProgress = 0"},
        {"unknown files", "ContentID = 'v!x9'", "ContentID = 'v!x10', ChapterProgress = 0"},
        {"files that a chapter goes on in", "StartContainerPath = 'a/x3.html#point(/9)'",
         "StartContainerPath = 'a/x3_2.html#point(/1)', ChapterProgress = 0"},
        {"progress", "ChapterProgress = 0.25, StartContainerPath = 'span#kobo\\.9\\.1'",
         "StartContainerPath = 'span#kobo\\.1\\.1'"},
        {"numbers of the path", "StartContainerPath = 'span#kobo\\.204\\.1'",
         "StartContainerPath = 'span#kobo\\.1030\\.1'"},
        {"a path that is longer", "StartContainerPath = 'x#kobo\\.20', StartOffset = 9",
         "StartContainerPath = 'x#kobo\\.20\\.1', StartOffset = 1"},
        {"offset", "StartOffset = 9, DateCreated = '2024-02-01'", "StartOffset = 10"},
        {"a negative offset", "StartOffset = -1", "StartOffset = 1"},
        {"time", "Text = 'x'", "DateCreated = '2024-02-01'"},
        {"offset after a long path", longPath + "9", longPath + "10"},
    };
    for (const auto& [name, before, after] : cases) {
        EXPECT_LT(storedPlace(before).order, storedPlace(after).order) << name;
    }
}

TEST(KoboDatabase, ColumnsOfLaterFirmwareMayLack) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {"BookmarkID, VolumeID, Text, DateCreated, UUID", "u|||a|||2024-01-15T14:30:00Z\n"},
        {"BookmarkID, VolumeID, Text, Color", "b||yellow|a|||\n"},
        {"BookmarkID, VolumeID", "b||||||\n"},
    };
    expectEach(cases, [](const std::string& columns) {
        return shownNotes(koboDatabase({"Type = 'note'"}) + "CREATE TABLE old AS SELECT " +
                          columns +
                          " FROM Bookmark; DROP TABLE Bookmark; ALTER TABLE old RENAME TO "
                          "Bookmark;");
    });
}

TEST(KoboDatabase, OtherDatabaseIsRefused) {
    const ScratchDirectory scratch;
    const std::string message =
        "sample is not the database of a Kobo reader, which has the tables Bookmark and "
        "content.";
    const Case cases[] = {
        {"CREATE TABLE Bookmark (VolumeID)", message},
        {"CREATE TABLE content (ContentID)", message},
        {"CREATE TABLE Bookmark (VolumeID); CREATE VIEW content AS SELECT 1",
         "sample is not as a Kobo reader writes it: content is a table of type view."},
        {"CREATE TABLE content (ContentID); CREATE VIRTUAL TABLE Bookmark USING fts4(a)",
         "sample is not as a Kobo reader writes it: Bookmark is a table of type virtual."},
        {std::string("SQLite format 3\0", 16) + "x", "sample: file is not a database"},
        {"CREATE TABLE Bookmark (VolumeID); CREATE TABLE content (ContentID, "
         "ContentType AS (ContentID || 'x'))",
         "sample is not as a Kobo reader writes it: columns of Bookmark or content "
         "are computed."},
        {"CREATE TABLE Bookmark (VolumeID); CREATE TABLE content (ContentID); INSERT INTO "
         "content VALUES (1), (2), (3), (4), (5), (6), (7), (8), (9); ALTER TABLE content "
         "ADD COLUMN Title DEFAULT '" +
             std::string(9000, 'a') + "'",
         "sample is damaged: its rows hold more than the whole file."},
    };
    expectEach(cases, shownSample);
}

}  // namespace
