// Exports books into pages that are whole, carry their records and replace nothing else.
#pragma once

#include <optional>
#include <string>

#include "client/files/temp_folder.h"
#include "client/pages/exporter.h"
#include "client/pages/note_selection.h"
#include "client/pages/older_pages.h"
#include "client/pages/page_target.h"
#include "store/reader_store.h"

namespace client {

struct ExportedPage {
    std::string path = {};          // as it is printed; empty if no page was written
    std::string recordsError = {};  // why it carries no records; empty if it does
};

class PageExport {
public:
    // For an update, looks through the folder.
    explicit PageExport(const PageTarget& target);

    // Writes the selected notes of the book, at least one of them, unless an update finds
    // them in the folder. Every failure is an exception that names the cause; nothing of
    // the page remains then.
    ExportedPage write(const host::BookEntry& book, NoteSelection notes);

private:
    OlderPages::Match find(const host::BookEntry& book, const NoteSelection& notes);
    // Returns nullopt, and writes nothing, if another program took the place of the page.
    std::optional<ExportedPage> writeInPlaceOf(const std::optional<OlderPages::Page>& older,
                                               const host::BookEntry& book,
                                               NoteSelection& notes);
    std::string writeInto(TempFolder& folder, const host::BookEntry& book,
                          NoteSelection& notes);
    std::optional<std::string> publish(const std::string& page,
                                       const host::BookEntry& book);
    std::string freeName(const host::BookEntry& book);
    std::string displayPath(const std::string& path) const;
    void requireStyleSheetFile() const;

    const PageTarget target_;
    Exporter exporter_;
    const std::string directory_;
    std::optional<OlderPages> olderPages_;
    std::string freeName_;  // where an update puts a page that replaces none
};

}  // namespace client
