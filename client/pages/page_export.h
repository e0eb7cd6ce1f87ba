// Exports books into pages that are whole, carry their records and replace nothing else.
#pragma once

#include <optional>
#include <string>

#include "client/files/temp_folder.h"
#include "client/pages/export_request.h"
#include "client/pages/exporter.h"
#include "client/pages/note_selection.h"
#include "client/pages/older_pages.h"
#include "store/reader_store.h"

struct ExportedPage {
    std::string path = {};        // as it is printed; empty when no page was written
    std::string unrecorded = {};  // why it carries no records; empty when it does
};

class PageExport {
public:
    // For an update, looks through the folder.
    explicit PageExport(const ExportRequest& request);

    // Writes the selected notes of the book, at least one of them, unless an update finds
    // them in the folder. Every failure is an exception that names the cause; nothing of
    // the page remains then.
    ExportedPage write(const host::BookEntry& book, NoteSelection notes);

private:
    OlderPages::Verdict judge(const host::BookEntry& book, const NoteSelection& notes);
    // Nothing when another program took the place of the page. Nothing is written then.
    std::optional<ExportedPage> writeInPlaceOf(const std::optional<OlderPages::Page>& older,
                                               const host::BookEntry& book,
                                               NoteSelection& notes);
    std::string writeInto(FreshFolder& folder, const host::BookEntry& book,
                          NoteSelection& notes);
    std::optional<std::string> place(const std::string& page, const host::BookEntry& book);
    std::string shown(const std::string& path) const;
    void complainUnlessStyleSheetIsFile() const;

    const ExportRequest& request_;
    Exporter exporter_;
    const std::string directory_;
    std::optional<OlderPages> olderPages_;
    std::string freeName_;  // where an update puts a page that replaces none
};
