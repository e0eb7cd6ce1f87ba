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
    /// Throws std::bad_alloc, and whatever the device's libraries throw.
    NotesExporter();

    /// Closes the databases. Throws nothing.
    ~NotesExporter();

    NotesExporter(const NotesExporter&) = delete;
    NotesExporter& operator=(const NotesExporter&) = delete;

    /// Sets the directory that receives exported files, as it stands: nothing is checked,
    /// added, removed or created. A "/" is put between it and the file's name.
    /// Throws std::bad_alloc.
    void setExportDir(const std::string& directory);

    /// Writes notes of the book `bookHash` into a new XHTML file under the export directory
    /// and marks the file in the device's library database.
    /// `ids` holds the database identifiers of the notes to export; empty means every note.
    /// `before(a, b)` tells whether the note with identifier `a` comes before the one with
    /// identifier `b`; empty orders the notes by page. It is copied, and only copies are
    /// called, on this thread, before this function returns. It should be a strict weak
    /// ordering; whatever else it answers, every note is written once.
    /// Returns -1, with nothing touched, when the reader database does not know the book.
    /// Returns 0 in every other case, also when the file could not be written.
    /// Throws what `before` and the device's libraries throw, and std::bad_alloc; the file
    /// then holds what was written so far, and is not marked.
    int export_bookmarks_to_html(const std::string& bookHash,
                                 const std::set<unsigned long long>& ids,
                                 const std::function<bool(long long, long long)>& before);

    /// The full path of the file that an export of the book `bookHash` would write now.
    /// Creates nothing. Throws what the device's libraries throw, and std::bad_alloc.
    std::string getExportedFileName(const std::string& bookHash);

    /// Merges the records that the exported file `path` carries into the reader database
    /// and marks the file in the device's library database. Returns what the device's
    /// import engine answers: negative for failure. Throws what the device's libraries
    /// throw, and std::bad_alloc.
    int import_from_file(const std::string& path);

private:
    std::unique_ptr<NotesExporterImpl> impl_;
};

}  // namespace veloran

#endif
