// Whether an exported page is still what an export would write now.
#pragma once

#include <set>
#include <string>

#include "client/pages/page_head.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

// What an export of a book would write now, but for the notes as people see them. The
// stores must outlive it.
class CurrentPage {
public:
    // `notes` are the identifiers of those that would be exported; empty means all.
    CurrentPage(host::ReaderStore& reader, host::LibraryStore& library,
                const host::BookEntry& book, std::set<unsigned long long> notes,
                std::string styleSheet);

    // Whether the page at `path` has the same records, headings and style sheet. The order
    // of its notes is not looked at.
    bool isAt(const std::string& path) const;

    // Whether the records of the page at `path` all are among those of the book, as they
    // are there or older: nothing is lost with that page.
    bool includes(const std::string& path) const;

private:
    bool hasRecords(const PageHead& page) const;

    host::ReaderStore& reader_;
    const std::set<unsigned long long> book_;  // its identifier alone
    const std::set<unsigned long long> notes_;
    const std::string styleSheet_;
    std::string title_;
    std::string author_;
};

}  // namespace client
