/// @file
/// notes_export: writes the notes of one book into one self-contained XHTML file, and reads
/// such a file back into the reader database. This is the C++ interface.
///
/// It does what the C functions of notes_export.h do; the conventions there hold here too,
/// with two differences: text is a std::string, and no function catches an exception.
#ifndef NOTES_EXPORT_NOTES_EXPORTER_H
#define NOTES_EXPORT_NOTES_EXPORTER_H

#include <functional>
#include <memory>
#include <set>
#include <string>

#include "notes_export/notes_export.h"

namespace veloran {

class NotesExporterImpl;

/// One exporter serves one thread at a time; different exporters share nothing but the
/// device's databases, where one may have to wait for the other.
class NOTES_EXPORT_API NotesExporter {
public:
    /// Opens the reader database. The export directory starts as "/mnt/ext1/Notes".
    /// A database that cannot be opened is not reported here; the calls that need it fail.
    /// Throws std::bad_alloc, and any exception of the device's libraries.
    NotesExporter();

    /// Closes the databases. Throws nothing.
    ~NotesExporter();

    NotesExporter(const NotesExporter&) = delete;
    NotesExporter& operator=(const NotesExporter&) = delete;

    /// Sets the directory that receives exported files. The path is used unchanged, and is
    /// neither checked nor created. A "/" is put between it and the file's name.
    /// Throws std::bad_alloc.
    void setExportDir(const std::string& directory);

    /// Writes notes of the book `bookHash` into a new XHTML file under the export directory
    /// and marks the file in the device's library database.
    /// `ids` holds the database identifiers of the notes to export; empty means every note.
    /// `before(a, b)` returns whether the note with identifier `a` comes before the one
    /// with identifier `b`; empty orders the notes by page. It is copied, and only copies
    /// are called, on this thread, before this function returns. It should be a strict weak
    /// ordering. Otherwise the order is unspecified, but each note is written once.
    /// Returns -1, with nothing changed, if the reader database does not have the book.
    /// Returns 0 otherwise, even if the file could not be written.
    /// Throws exceptions of `before` and of the device's libraries, and std::bad_alloc; the
    /// file is then incomplete, and is not marked.
    int export_bookmarks_to_html(const std::string& bookHash,
                                 const std::set<unsigned long long>& ids,
                                 const std::function<bool(long long, long long)>& before);

    /// Returns the path that the next export of the book `bookHash` would use; after that
    /// export, a new one. Creates no file. Throws what the device's libraries throw, and
    /// std::bad_alloc.
    std::string getExportedFileName(const std::string& bookHash);

    /// Merges the records that the exported file `path` carries into the reader database
    /// and marks the file in the device's library database. Returns the result of the
    /// device's import engine, negative on failure. Throws what the device's libraries
    /// throw, and std::bad_alloc.
    int import_from_file(const std::string& path);

private:
    std::unique_ptr<NotesExporterImpl> impl_;
};

}  // namespace veloran

#endif
