#include "client/pages/older_pages.h"

#include <algorithm>
#include <filesystem>

#include "client/files/whole_file.h"
#include "client/pages/current_page.h"
#include "store/database_paths.h"

namespace client {
namespace {

std::string currentStyleSheet() {
    std::error_code failure;
    return std::filesystem::is_regular_file(host::kNoteStyleSheetPath, failure)
               ? readFile(host::kNoteStyleSheetPath)
               : std::string();
}

}  // namespace

OlderPages::OlderPages(const std::string& folder, const std::string& file)
    : file_(file),
      styleSheet_(currentStyleSheet()),
      folder_(file.empty() ? folder : ""),
      reader_(host::kReaderDatabasePath),
      library_(host::kLibraryDatabasePath) {}

OlderPages::Match OlderPages::find(const host::BookEntry& book,
                                   const std::set<unsigned long long>& notes) {
    const CurrentPage current(reader_, library_, book, notes, styleSheet_);
    const std::vector<std::string> pages = candidates(book.fastHash);
    const auto isCurrent = [&](const std::string& page) { return current.isAt(page); };
    if (std::any_of(pages.begin(), pages.end(), isCurrent)) {
        return {true, std::nullopt};
    }
    for (const std::string& page : pages) {
        // Before the page is read: the file there may be another one afterwards.
        const auto identity = host::identityOf(page);
        if (identity && current.includes(page)) {
            return {false, Page{page, *identity}};
        }
    }
    return {};
}

std::vector<std::string> OlderPages::candidates(const std::string& bookHash) const {
    return file_.empty() ? folder_.pagesOf(bookHash) : std::vector{file_};
}

}  // namespace client
