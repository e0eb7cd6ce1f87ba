// Exports books into pages that are whole, carry their records, and replace only pages that
// the client has written and nobody has changed.
#pragma once

#include <optional>
#include <string>

#include "client/files/temp_folder.h"
#include "client/pages/exporter.h"
#include "client/pages/note_selection.h"
#include "client/pages/page_inputs.h"
#include "client/pages/page_places.h"
#include "store/reader_store.h"

namespace client {

// The place that pages are exported to.
struct PageTarget {
    std::string directory = {};    // for the pages; empty: the collection's own
    std::string file = {};         // of the one page; empty: it is named after the book
    bool isNew = false;            // another page is written beside those that are there
    std::string displayRoot = {};  // the folder that a printed relative path starts from
};

struct ExportedPage {
    std::string path;          // as it is printed
    std::string message = {};  // for standard error; empty if there is none
    bool failed = false;
};

class PageExport {
public:
    explicit PageExport(const PageTarget& target);

    // Brings the page of the book with these notes up to date. Every failure is an
    // exception that names the cause; nothing is written then.
    ExportedPage write(const host::BookEntry& book, NoteSelection notes);

    // Returns the path that `write` would write to now, as it is printed.
    std::string nextPath(const host::BookEntry& book, const NoteSelection& notes);

private:
    struct Page {
        std::string path;
        std::string content;  // its digest
        std::string recordsError;
    };

    WrittenFile describe(const host::BookEntry& book, const NoteSelection& notes);
    PagePlace find(const host::BookEntry& book, const WrittenFile& wanted);
    std::string stemOf(const host::BookEntry& book);
    Page render(const host::BookEntry& book, NoteSelection& notes);
    // Returns nullopt, and moves nothing, if another program took the place.
    std::optional<ExportedPage> publish(const Page& page, PagePlace place,
                                        WrittenFile wanted, const std::string& stem);
    bool move(const Page& page, const PagePlace& place);
    ExportedPage resultOf(const Page& page, const PagePlace& place);
    std::string displayPath(const std::string& name) const;
    void requireStyleSheetFile() const;

    const PageTarget target_;
    const std::string fileName_;  // empty: the page is named after the book
    Exporter exporter_;
    const std::string directory_;
    PageInputs inputs_;
    PagePlaces places_;
    std::optional<TempFolder> temp_;
};

}  // namespace client
