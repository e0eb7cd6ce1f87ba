// Exports books into pages that are whole, carry their records, and replace only pages that
// the client has written and nobody has changed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

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
    std::string path;          // as it is printed; empty if there is none
    std::string message = {};  // for standard error; empty if there is none
    bool failed = false;
};

class PageExport {
public:
    explicit PageExport(const PageTarget& target);

    // Renders the page of the book with these notes, unless it is up to date. Throws an
    // exception that names the cause of a failure.
    void add(const host::BookEntry& book, NoteSelection notes);

    // Returns whether so much is rendered that publish() is due.
    bool isFull() const { return pending_.size() >= kMaxPages || size_ >= kMaxSize; }

    // Moves the rendered pages to their places. Returns the results of all books since the
    // last call, in their order.
    std::vector<ExportedPage> publish();

    // Returns the path that a page of these notes would be moved to now, as it is printed.
    std::string nextPath(const host::BookEntry& book, const NoteSelection& notes);

private:
    // Each commit to the database waits for the disk: pages are noted together.
    static constexpr std::size_t kMaxPages = 50;
    static constexpr std::uintmax_t kMaxSize = std::uintmax_t{64} << 20;

    struct Page {
        std::size_t index;  // of its result
        host::BookEntry book;
        WrittenFile file;
        PagePlace place;
        std::string path;
        std::string content;  // its digest
        std::string recordsError;
        std::string noteError = {};

        // Returns whether its place has a page with records, which this one lacks.
        bool keepsRecords() const {
            return place.ours && place.ours->hasRecords() && !recordsError.empty();
        }
    };

    WrittenFile describe(const host::BookEntry& book, const NoteSelection& notes);
    PagePlace find(const host::BookEntry& book, const WrittenFile& wanted);
    std::string stemOf(const host::BookEntry& book);
    void render(Page& page, NoteSelection& notes);
    void note(const std::vector<Page*>& pages);
    ExportedPage publish(Page& page);
    bool move(const Page& page);
    ExportedPage resultOf(const Page& page) const;
    std::string displayPath(const std::string& name) const;
    void requireStyleSheetFile() const;

    const PageTarget target_;
    const std::string fileName_;  // empty: the page is named after the book
    Exporter exporter_;
    const std::string directory_;
    PageInputs inputs_;
    PagePlaces places_;
    std::optional<TempFolder> temp_;
    std::vector<Page> pending_;
    std::uintmax_t size_ = 0;  // of the pending pages, in bytes
    std::vector<ExportedPage> results_;
};

}  // namespace client
