// Databases of Kobo readers, of any firmware.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cases.h"
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
