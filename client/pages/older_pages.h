// The pages of earlier exports, for an update.
#pragma once

#include <optional>
#include <set>
#include <string>

#include "client/pages/page_folder.h"
#include "files/file_identity.h"
#include "store/library_store.h"
#include "store/reader_store.h"

namespace client {

class OlderPages {
public:
    // Looks for them in the folder, or at `file` alone when that is not empty.
    OlderPages(const std::string& folder, const std::string& file);

    struct Page {
        std::string path;
        host::FileIdentity identity;
    };
    struct Match {
        bool isUpToDate = false;    // a page has the book's records already
        std::optional<Page> older;  // the page whose place the new one may take
    };

    // Finds the pages that others have made since, too.
    void lookAgain() { folder_.lookAgain(); }

    // Of the notes of the book with these identifiers, or all when there are none.
    Match find(const host::BookEntry& book, const std::set<unsigned long long>& notes);

private:
    std::vector<std::string> candidates(const std::string& bookHash) const;

    const std::string file_;
    const std::string styleSheet_;
    PageFolder folder_;
    host::ReaderStore reader_;
    host::LibraryStore library_;
};

}  // namespace client
