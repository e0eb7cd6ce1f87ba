// The device's databases, the style sheet of exported notes, and their folder.
#pragma once

#ifndef NOTES_EXPORT_DEVICE_ROOT
#define NOTES_EXPORT_DEVICE_ROOT "/mnt/ext1"
#endif

namespace host {

// A relative root resolves against the working directory when a database is opened.
inline constexpr const char* kReaderDatabasePath =
    NOTES_EXPORT_DEVICE_ROOT "/system/config/books.db";
inline constexpr const char* kLibraryDatabasePath =
    NOTES_EXPORT_DEVICE_ROOT "/system/config/library.db";
inline constexpr const char* kNoteStyleSheetPath =
    NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css";
inline constexpr const char* kNotesDirectory = NOTES_EXPORT_DEVICE_ROOT "/Notes";

}  // namespace host
