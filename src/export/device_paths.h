// The fixed paths on the device.
#pragma once

#ifndef NOTES_EXPORT_DEVICE_ROOT
#define NOTES_EXPORT_DEVICE_ROOT "/mnt/ext1"
#endif

namespace veloran {

inline constexpr char kDefaultExportDir[] = NOTES_EXPORT_DEVICE_ROOT "/Notes";
inline constexpr char kReaderDatabase[] =
    NOTES_EXPORT_DEVICE_ROOT "/system/config/books.db";
inline constexpr char kNoteStyleSheet[] =
    NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css";

}  // namespace veloran
