// The implementation behind NotesExporter.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>

#include "readerlib/database.h"
#include "utilities/note.h"
#include "utilities/reader_db_manager.h"
#include "writer/writer.h"

namespace veloran {

// Returns whether the note with the first identifier comes before the one with the second.
// An empty function means page order.
using NoteOrder = std::function<bool(long long, long long)>;

class NotesExporterImpl {
public:
    NotesExporterImpl();

    // Documented in notes_exporter.h.
    void setExportDir(const std::string& directory) { exportDir_ = directory; }
    int export_bookmarks_to_html(const std::string& bookHash,
                                 const std::set<unsigned long long>& ids,
                                 const NoteOrder& before);
    std::string getExportFilename(const std::string& bookHash);
    int import_from_file(const std::string& path);

    // Returns the title in the library database, else in the reader database. If the title
    // is empty, returns the name of the book's file. Empty if neither has the book.
    static std::string getBookTitle(const std::string& bookHash);
    static std::string getBookTitleFromExplorerDB(const std::string& bookHash);
    static std::string getBookTitleFromReaderDB(const std::string& bookHash);

    // Returns the author in the library database; empty if there is none.
    static std::string getBookAuthorFromExplorerDB(const std::string& bookHash);

    // Writes the `style` element with the device's note style sheet. Returns 0.
    static int writeExportCss(Writer& writer);

    // Writes the `script` element with the book's records. Returns 0, or -1 if there are no
    // records and nothing was written.
    int writeBinaryDump(Writer& writer, long long itemId,
                        const std::set<unsigned long long>& ids);

    // Writes the selected notes of the book, in order. Returns 0.
    int writeBookmarks(Writer& writer, const std::string& bookHash,
                       const std::set<unsigned long long>& ids, const NoteOrder& before);

    // Writes the block of one note. Returns 0.
    static int writeBookmark(Writer& writer, const utilities::Note& note);

    // Returns the note's page number without its fraction; nullopt if its position names no
    // page, or one that does not fit into 32 bits.
    static std::optional<int> getPageNumber(const utilities::Note& note);

    // Returns the page number as decimal text; empty if there is none.
    static std::string getNotePage(const utilities::Note& note);

private:
    // Destroyed in reverse order: the manager's connection before the database handle.
    Veloran::ReaderLib::DataBase database_;
    utilities::ReaderDbManager readerDb_;
    std::string exportDir_;
};

}  // namespace veloran
