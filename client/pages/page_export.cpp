#include "client/pages/page_export.h"

#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <vector>

#include "client/error.h"
#include "client/files/digest.h"
#include "client/files/move_into_place.h"
#include "client/pages/page_checks.h"
#include "store/database_paths.h"

namespace client {
namespace {

namespace fs = std::filesystem;

// Follows links: the file is written where they lead.
fs::path followLinks(fs::path path) {
    constexpr int kMaxLinks = 40;
    std::error_code failure;
    for (int i = 0; i < kMaxLinks && fs::is_symlink(fs::symlink_status(path, failure));
         ++i) {
        path = path.parent_path() / fs::read_symlink(path, failure);
    }
    return path;
}

std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }

void callLibrary(const Exporter& exporter, const host::BookEntry& book,
                 NoteSelection& notes) {
    const std::vector<unsigned long long> ids(notes.ids.begin(), notes.ids.end());
    if (notes_exporter_export_bookmarks_to_html(exporter.handle(), book.fastHash.c_str(),
                                                ids.data(), ids.size(), notes.before,
                                                &notes.ranks) != 0) {
        throw UserError("The book " + book.fastHash + " is no longer in the collection.");
    }
}

}  // namespace

PageExport::PageExport(const PageTarget& target)
    : target_(target),
      fileName_(followLinks(target.file).filename().string()),
      exporter_(target.file.empty() ? target.directory
                                    : followLinks(target.file).parent_path().string()),
      directory_(exporter_.directory()),
      places_(directory_) {
    requireStyleSheetFile();
}

void PageExport::add(const host::BookEntry& book, NoteSelection notes) {
    WrittenFile wanted = describe(book, notes);
    PagePlace place = find(book, wanted);
    if (place.ours && place.ours->inputs == wanted.inputs) {
        results_.push_back({displayPath(place.name)});
        return;
    }
    Page page{results_.size(), book, std::move(wanted), std::move(place), "", "", ""};
    render(page, notes);
    places_.add(page.place.name);  // for this page
    size_ += fs::file_size(page.path);
    pending_.push_back(std::move(page));
    results_.emplace_back();
}

std::vector<ExportedPage> PageExport::publish() {
    std::vector<Page*> pages;
    for (Page& page : pending_) {
        pages.push_back(&page);
    }
    note(pages);
    for (Page& page : pending_) {
        try {
            results_[page.index] = publish(page);
        } catch (const std::runtime_error& error) {
            results_[page.index] = {"", error.what(), true};
        }
    }
    pending_.clear();
    size_ = 0;
    return std::exchange(results_, {});
}

std::string PageExport::nextPath(const host::BookEntry& book, const NoteSelection& notes) {
    return displayPath(find(book, describe(book, notes)).name);
}

WrittenFile PageExport::describe(const host::BookEntry& book, const NoteSelection& notes) {
    Digest selection;
    selection.add(notes.description);
    return {book.fastHash, "html", selection.hexadecimal(), inputs_.digest(book, notes)};
}

PagePlace PageExport::find(const host::BookEntry& book, const WrittenFile& wanted) {
    return !fileName_.empty() ? places_.findFile(fileName_, wanted, displayPath(fileName_))
           : target_.isNew    ? places_.findFree(stemOf(book))
                              : places_.find(stemOf(book), wanted);
}

// Nothing can exist below a file, so that the library adds no counter.
std::string PageExport::stemOf(const host::BookEntry& book) {
    exporter_.setDirectory("/dev/null");
    const std::string name = nameOf(exporter_.fileName(book.fastHash));
    return name.substr(0, name.rfind('.'));
}

// The library finds a free name and then opens it; a file created there in between is
// overwritten. So it writes where nobody else does.
void PageExport::render(Page& page, NoteSelection& notes) {
    if (!temp_) {
        TempFolder::removeLeftovers(directory_);
        temp_.emplace(directory_);
    }
    exporter_.setDirectory(temp_->path());
    page.path = exporter_.fileName(page.book.fastHash);
    page.file.run = nameOf(temp_->path());
    temp_->expect(page.path);
    callLibrary(exporter_, page.book, notes);
    requireWhole(page.path, displayPath(nameOf(page.path)));
    page.content = contentDigest(page.path);
    page.recordsError = findRecordsError(page.path, page.book.fastHash, notes.ids);
    if (!page.recordsError.empty()) {
        page.file.inputs = WrittenFile::kNoRecords;
    }
}

// Where pages cannot be noted, nothing is replaced: nobody would know the new ones again.
void PageExport::note(const std::vector<Page*>& pages) {
    std::vector<std::pair<std::string, WrittenFile>> files;
    for (Page* page : pages) {
        page->file.name = page->place.name;
        files.emplace_back(page->content, page->file);
    }
    const std::string error = places_.tryNote(files);
    for (Page* page : pages) {
        page->noteError = error;
        if (!error.empty() && page->place.ours) {
            page->place = places_.findFree(stemOf(page->book));
        }
    }
}

// Another program may take the place meanwhile. If that was another update, its page is up
// to date when the place is looked for again.
ExportedPage PageExport::publish(Page& page) {
    constexpr int kAttempts = 10;
    for (int i = 0; i < kAttempts; ++i) {
        if (page.keepsRecords() || move(page)) {
            return resultOf(page);
        }
        // Another collection may have put the same bytes there.
        places_.tryForget(page.content, page.file);
        places_.add(page.place.name);
        page.place = find(page.book, page.file);
        if (page.file.hasRecords() && page.place.ours &&
            page.place.ours->inputs == page.file.inputs) {
            return {displayPath(page.place.name)};
        }
        note({&page});
    }
    throw UserError("The page of the book " + page.book.fastHash +
                    " keeps changing. Export it again.");
}

bool PageExport::move(const Page& page) {
    const std::string& name = page.place.name;
    const std::string path = directory_ + '/' + name;
    if (!page.place.ours) {
        return moveIntoPlace(page.path, path, displayPath(name));
    }
    const auto isUntouched = [&](const std::string& file) {
        return tryContentDigest(file) == page.place.content;
    };
    const bool isDone = replaceFile(page.path, path, isUntouched, displayPath(name));
    std::error_code ignored;
    fs::remove(isDone ? page.path : "", ignored);
    return isDone;
}

ExportedPage PageExport::resultOf(const Page& page) const {
    ExportedPage result{displayPath(page.place.name)};
    if (!page.place.foreign.empty()) {
        result.message = displayPath(page.place.foreign) +
                         " is not as notes-export wrote it, and stays as it is.\n";
    }
    if (!page.noteError.empty()) {
        result.message += "The next export will not replace " + result.path +
                          ", which could not be noted: " + page.noteError + '\n';
    }
    if (!page.recordsError.empty()) {
        result.message +=
            (page.keepsRecords()
                 ? "The page stays as it is, because a new one would carry no records: "
                 : "The page carries no records that an import could read: ") +
            page.recordsError + ".\n";
        result.failed = true;
    }
    return result;
}

// Returns the path as the caller of the client can use it.
std::string PageExport::displayPath(const std::string& name) const {
    return target_.file.empty()
               ? (fs::path(target_.displayRoot) / directory_ / name).string()
               : (fs::path(target_.displayRoot) / target_.file).string();
}

// The library would wait for a pipe without end, and read a device without end.
void PageExport::requireStyleSheetFile() const {
    const char* path = host::kNoteStyleSheetPath;
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw UserError("The style sheet " +
                        (fs::path(target_.displayRoot) / path).string() +
                        " is not a file. Remove it, or put a file in its place.");
    }
}

}  // namespace client
