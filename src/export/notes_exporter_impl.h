// The object that does the library's work; the facade owns exactly one.
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

// Whether the note with the first identifier comes before the one with the second; empty
// for page order.
using NoteOrder = std::function<bool(long long, long long)>;

class NotesExporterImpl {
public:
    NotesExporterImpl();

    // What the facade forwards to; notes_exporter.h documents it.
    void setExportDir(const std::string& directory) { exportDir_ = directory; }
    int export_bookmarks_to_html(const std::string& bookHash,
                                 const std::set<unsigned long long>& ids,
                                 const NoteOrder& before);
    std::string getExportFilename(const std::string& bookHash);
    int import_from_file(const std::string& path);

    // The book's title: of the library database, else of the reader database. The name of
    // the book's file stands in for an empty title. Empty when neither knows the book.
    static std::string getBookTitle(const std::string& bookHash);
    static std::string getBookTitleFromExplorerDB(const std::string& bookHash);
    static std::string getBookTitleFromReaderDB(const std::string& bookHash);

    // The book's author of the library database; empty when it knows none.
    static std::string getBookAuthorFromExplorerDB(const std::string& bookHash);

    // The `style` element with the device's note style sheet. Returns 0.
    static int writeExportCss(Writer& writer);

    // The `script` element with the book's records. Returns 0, or -1 when there are no
    // records to be had and nothing was written.
    int writeBinaryDump(Writer& writer, long long itemId,
                        const std::set<unsigned long long>& ids);

    // The selected notes of the book, in order. Returns 0.
    int writeBookmarks(Writer& writer, const std::string& bookHash,
                       const std::set<unsigned long long>& ids, const NoteOrder& before);

    // The block of one note. Returns 0.
    static int writeBookmark(Writer& writer, const utilities::Note& note);

    // The note's page number, fraction dropped. Nothing when its position names no page, or
    // one that no 32-bit integer can hold.
    static std::optional<int> getPageNumber(const utilities::Note& note);

    // The note's page label: the decimal text of its page number, empty without one.
    static std::string getNotePage(const utilities::Note& note);

private:
    // Released in reverse order: the manager's connection before the database handle.
    Veloran::ReaderLib::DataBase database_;
    utilities::ReaderDbManager readerDb_;
    std::string exportDir_;
};

}  // namespace veloran
