#include "client/pages/page_folder.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "client/pages/page_head.h"

namespace client {

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> htmlFilesIn(const std::string& folder) {
    std::vector<fs::path> files;
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; entry != end && !failure;
         entry.increment(failure)) {
        std::error_code ignored;
        if (entry->path().extension() == ".html" &&
            fs::is_regular_file(entry->symlink_status(ignored))) {
            files.push_back(entry->path());
        }
    }
    return files;
}

}  // namespace

PageFolder::PageFolder(std::string folder) : folder_(std::move(folder)) { lookAgain(); }

void PageFolder::lookAgain() {
    for (const fs::path& file : htmlFilesIn(folder_)) {
        if (!seen_.insert(file.string()).second) {
            continue;
        }
        const std::string hash = bookHashIn(file.string());
        if (!hash.empty()) {
            pages_[hash].push_back(file.string());
        }
    }
}

std::vector<std::string> PageFolder::pagesOf(const std::string& bookHash) const {
    const auto found = pages_.find(bookHash);
    if (found == pages_.end()) {
        return {};
    }
    std::vector<std::pair<fs::file_time_type, std::string>> dated;
    for (const std::string& page : found->second) {
        std::error_code failure;
        dated.emplace_back(fs::last_write_time(page, failure), page);
    }
    std::sort(dated.rbegin(), dated.rend());
    std::vector<std::string> pages;
    std::transform(dated.begin(), dated.end(), std::back_inserter(pages),
                   [](auto& page) { return std::move(page.second); });
    return pages;
}

}  // namespace client
