#include "client/pages/page_export.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "client/error.h"
#include "client/files/move_into_place.h"
#include "client/pages/page_checks.h"
#include "store/database_paths.h"

namespace fs = std::filesystem;

namespace {

std::string directoryOf(const ExportRequest& request) {
    return request.file.empty() ? request.directory
                                : fs::path(request.file).parent_path().string();
}

std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }

void callLibrary(const Exporter& exporter, const host::BookEntry& book,
                 NoteSelection& notes) {
    const std::vector<unsigned long long> ids(notes.ids.begin(), notes.ids.end());
    if (notes_exporter_export_bookmarks_to_html(exporter.handle(), book.fastHash.c_str(),
                                                ids.data(), ids.size(), notes.before,
                                                &notes.timestamps) != 0) {
        throw Complaint("The book " + book.fastHash + " is no longer on the device.");
    }
}

}  // namespace

PageExport::PageExport(const ExportRequest& request)
    : request_(request),
      exporter_(directoryOf(request)),
      directory_(exporter_.directory()) {
    complainUnlessStyleSheetIsFile();
    if (request.update) {
        olderPages_.emplace(directory_, request.file);
    }
}

// Another update may write the page at the same time. Its page is then up to date, or is
// the older page that this one replaces.
ExportedPage PageExport::write(const host::BookEntry& book, NoteSelection notes) {
    constexpr int kAttempts = 10;
    for (int i = 0; i < kAttempts; ++i) {
        const auto verdict = olderPages_ ? judge(book, notes) : OlderPages::Verdict();
        if (verdict.isUpToDate) {
            return {};
        }
        if (auto page = writeInPlaceOf(verdict.older, book, notes)) {
            return *page;
        }
    }
    throw Complaint("Other programs replace the page of the book " + book.fastHash +
                    " all the time. Export it again.");
}

// The free name is found before the last look at the folder. If another update writes a
// page after that look, the name is taken, and the page is judged again.
OlderPages::Verdict PageExport::judge(const host::BookEntry& book,
                                      const NoteSelection& notes) {
    auto verdict = olderPages_->judge(book, notes.ids);
    if (request_.file.empty() && !verdict.isUpToDate && !verdict.older) {
        freeName_ = exporter_.fileName(book.fastHash);
        olderPages_->lookAgain();
        verdict = olderPages_->judge(book, notes.ids);
    }
    return verdict;
}

// The library finds a free name and then opens it, replacing what came there in between:
// it writes where nobody else does.
std::optional<ExportedPage> PageExport::writeInPlaceOf(
    const std::optional<OlderPages::Page>& older, const host::BookEntry& book,
    NoteSelection& notes) {
    FreshFolder folder(directory_);
    const std::string page = writeInto(folder, book, notes);
    const std::string unrecorded = whyWithoutRecords(page, book.fastHash, notes.ids);
    if (!older) {
        const auto path = place(page, book);
        return path ? std::optional(ExportedPage{shown(*path), unrecorded}) : std::nullopt;
    }
    if (!exchange(page, older->path, older->identity, shown(older->path))) {
        return std::nullopt;
    }
    return ExportedPage{shown(older->path), unrecorded};
}

std::string PageExport::writeInto(FreshFolder& folder, const host::BookEntry& book,
                                  NoteSelection& notes) {
    exporter_.setDirectory(folder.path());
    std::string page = exporter_.fileName(book.fastHash);
    folder.expect(page);
    callLibrary(exporter_, book, notes);
    exporter_.setDirectory(directory_);
    complainUnlessWhole(page, shown(directory_ + "/" + nameOf(page)));
    return page;
}

// The page's name is free there in most cases; the next one is asked for as long as others
// take it.
std::optional<std::string> PageExport::place(const std::string& page,
                                             const host::BookEntry& book) {
    if (!request_.file.empty()) {
        if (!moveIntoPlace(page, request_.file, shown(request_.file))) {
            throw Complaint(shown(request_.file) +
                            " is there already, and stays as it is.");
        }
        return request_.file;
    }
    if (olderPages_) {
        return moveIntoPlace(page, freeName_, shown(freeName_)) ? std::optional(freeName_)
                                                                : std::nullopt;
    }
    std::string path = directory_ + "/" + nameOf(page);
    while (!moveIntoPlace(page, path, shown(path))) {
        path = exporter_.fileName(book.fastHash);
    }
    return path;
}

// The path as the caller of the client can use it.
std::string PageExport::shown(const std::string& path) const {
    return (fs::path(request_.deviceFolder) / path).string();
}

// The library would wait for a pipe without end, and read a device without end.
void PageExport::complainUnlessStyleSheetIsFile() const {
    const char* path = host::kNoteStyleSheetPath;
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw Complaint("The style sheet " + shown(path) +
                        " is not a file. Remove it, or put a file in its place.");
    }
}
