#include "client/pages/page_export.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "client/error.h"
#include "client/files/move_into_place.h"
#include "client/pages/page_checks.h"
#include "store/database_paths.h"

namespace client {

namespace fs = std::filesystem;

namespace {

std::string directoryOf(const PageTarget& target) {
    return target.file.empty() ? target.directory
                               : fs::path(target.file).parent_path().string();
}

std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }

void callLibrary(const Exporter& exporter, const host::BookEntry& book,
                 NoteSelection& notes) {
    const std::vector<unsigned long long> ids(notes.ids.begin(), notes.ids.end());
    if (notes_exporter_export_bookmarks_to_html(exporter.handle(), book.fastHash.c_str(),
                                                ids.data(), ids.size(), notes.before,
                                                &notes.times) != 0) {
        throw UserError("The book " + book.fastHash + " is no longer in the collection.");
    }
}

}  // namespace

PageExport::PageExport(const PageTarget& target)
    : target_(target), exporter_(directoryOf(target)), directory_(exporter_.directory()) {
    requireStyleSheetFile();
    if (target.update) {
        olderPages_.emplace(directory_, target.file);
    }
}

// Another update may write the page at the same time. Its page is then up to date, or is
// the older page that this one replaces.
ExportedPage PageExport::write(const host::BookEntry& book, NoteSelection notes) {
    constexpr int kAttempts = 10;
    for (int i = 0; i < kAttempts; ++i) {
        const auto match = olderPages_ ? find(book, notes) : OlderPages::Match();
        if (match.isUpToDate) {
            return {};
        }
        if (auto page = writeInPlaceOf(match.older, book, notes)) {
            return *page;
        }
    }
    throw UserError("The page of the book " + book.fastHash +
                    " keeps changing. Export it again.");
}

// The free name is found before the last look at the folder. If another update writes a
// page after that look, the name is taken, and the page is judged again.
OlderPages::Match PageExport::find(const host::BookEntry& book,
                                   const NoteSelection& notes) {
    auto match = olderPages_->find(book, notes.ids);
    if (target_.file.empty() && !match.isUpToDate && !match.older) {
        freeName_ = freeName(book);
        olderPages_->lookAgain();
        match = olderPages_->find(book, notes.ids);
    }
    return match;
}

// The library finds a free name and then opens it, replacing what came there in between:
// it writes where nobody else does.
std::optional<ExportedPage> PageExport::writeInPlaceOf(
    const std::optional<OlderPages::Page>& older, const host::BookEntry& book,
    NoteSelection& notes) {
    TempFolder folder(directory_);
    const std::string page = writeInto(folder, book, notes);
    const std::string recordsError = whyWithoutRecords(page, book.fastHash, notes.ids);
    if (!older) {
        const auto path = publish(page, book);
        return path ? std::optional(ExportedPage{displayPath(*path), recordsError})
                    : std::nullopt;
    }
    if (!swapFiles(page, older->path, older->identity, displayPath(older->path))) {
        return std::nullopt;
    }
    return ExportedPage{displayPath(older->path), recordsError};
}

std::string PageExport::writeInto(TempFolder& folder, const host::BookEntry& book,
                                  NoteSelection& notes) {
    exporter_.setDirectory(folder.path());
    std::string page = exporter_.fileName(book.fastHash);
    folder.expect(page);
    callLibrary(exporter_, book, notes);
    requireWhole(page, displayPath(directory_ + "/" + nameOf(page)));
    return page;
}

// The page's name is free there in most cases; the next one is asked for as long as others
// take it.
std::optional<std::string> PageExport::publish(const std::string& page,
                                               const host::BookEntry& book) {
    if (!target_.file.empty()) {
        if (!moveIntoPlace(page, target_.file, displayPath(target_.file))) {
            throw UserError(displayPath(target_.file) +
                            " is there already, and stays as it is.");
        }
        return target_.file;
    }
    if (olderPages_) {
        return moveIntoPlace(page, freeName_, displayPath(freeName_))
                   ? std::optional(freeName_)
                   : std::nullopt;
    }
    std::string path = directory_ + "/" + nameOf(page);
    while (!moveIntoPlace(page, path, displayPath(path))) {
        path = freeName(book);
    }
    return path;
}

// The exporter may still write into a folder that is gone.
std::string PageExport::freeName(const host::BookEntry& book) {
    exporter_.setDirectory(directory_);
    return exporter_.fileName(book.fastHash);
}

// Returns the path as the caller of the client can use it.
std::string PageExport::displayPath(const std::string& path) const {
    return (fs::path(target_.displayRoot) / path).string();
}

// The library would wait for a pipe without end, and read a device without end.
void PageExport::requireStyleSheetFile() const {
    const char* path = host::kNoteStyleSheetPath;
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw UserError("The style sheet " + displayPath(path) +
                        " is not a file. Remove it, or put a file in its place.");
    }
}

}  // namespace client
