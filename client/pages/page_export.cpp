#include "client/pages/page_export.h"

#include <filesystem>
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
                                                &notes.times) != 0) {
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

// Another program may take the place meanwhile. If that was another update, its page is up
// to date when the place is looked for again.
ExportedPage PageExport::write(const host::BookEntry& book, NoteSelection notes) {
    constexpr int kAttempts = 10;
    const WrittenFile wanted = describe(book, notes);
    std::optional<Page> page;
    for (int i = 0; i < kAttempts; ++i) {
        const PagePlace place = find(book, wanted);
        if (place.ours && place.ours->inputs == wanted.inputs) {
            return {displayPath(place.name)};
        }
        page = page ? page : render(book, notes);
        if (auto result = publish(*page, place, wanted, stemOf(book))) {
            return *result;
        }
    }
    throw UserError("The page of the book " + book.fastHash +
                    " keeps changing. Export it again.");
}

std::string PageExport::nextPath(const host::BookEntry& book, const NoteSelection& notes) {
    return displayPath(find(book, describe(book, notes)).name);
}

WrittenFile PageExport::describe(const host::BookEntry& book, const NoteSelection& notes) {
    Digest selection;
    selection.add(notes.description);
    return {book.fastHash, "html", selection.hexadecimal(),
            inputs_.digest(book, notes.ids)};
}

PagePlace PageExport::find(const host::BookEntry& book, const WrittenFile& wanted) {
    return !fileName_.empty() ? places_.findFile(fileName_, wanted, displayPath(fileName_))
           : target_.isNew    ? places_.findFree(stemOf(book))
                              : places_.find(stemOf(book), wanted);
}

// Below a file that is no folder, every name is free: the library adds no counter.
std::string PageExport::stemOf(const host::BookEntry& book) {
    exporter_.setDirectory("/dev/null");
    const std::string name = nameOf(exporter_.fileName(book.fastHash));
    return name.substr(0, name.rfind('.'));
}

// The library finds a free name and then opens it, replacing what came there in between:
// it writes where nobody else does.
PageExport::Page PageExport::render(const host::BookEntry& book, NoteSelection& notes) {
    if (!temp_) {
        TempFolder::removeLeftovers(directory_);
        temp_.emplace(directory_);
    }
    exporter_.setDirectory(temp_->path());
    const std::string path = exporter_.fileName(book.fastHash);
    temp_->expect(path);
    callLibrary(exporter_, book, notes);
    requireWhole(path, displayPath(nameOf(path)));
    return {path, contentDigest(path), findRecordsError(path, book.fastHash, notes.ids)};
}

// A page without its records never takes the place of one that has them. Where nothing can
// be noted, nothing is replaced: nobody would know the new page again.
std::optional<ExportedPage> PageExport::publish(const Page& page, PagePlace place,
                                                WrittenFile wanted,
                                                const std::string& stem) {
    if (!page.recordsError.empty()) {
        wanted.inputs = WrittenFile::kNoRecords;
    }
    if (place.ours && place.ours->hasRecords() && !wanted.hasRecords()) {
        return resultOf(page, place);
    }
    wanted.name = place.name;
    const std::string noteError = places_.tryNote(page.content, wanted);
    if (!noteError.empty() && place.ours) {
        place = places_.findFree(stem);
    }
    const bool isMoved = move(page, place);
    places_.add(place.name);
    if (!isMoved) {
        return std::nullopt;
    }
    ExportedPage result = resultOf(page, place);
    if (!noteError.empty()) {
        result.message += "The next export will not replace " + result.path +
                          ", which could not be noted: " + noteError + '\n';
    }
    return result;
}

bool PageExport::move(const Page& page, const PagePlace& place) {
    const std::string path = directory_ + '/' + place.name;
    if (!place.ours) {
        return moveIntoPlace(page.path, path, displayPath(place.name));
    }
    const auto isUntouched = [&](const std::string& file) {
        return contentDigest(file) == place.content;
    };
    const bool isDone = replaceFile(page.path, path, isUntouched, displayPath(place.name));
    std::error_code ignored;
    fs::remove(isDone ? page.path : "", ignored);
    return isDone;
}

ExportedPage PageExport::resultOf(const Page& page, const PagePlace& place) {
    ExportedPage result{displayPath(place.name)};
    if (!place.foreign.empty()) {
        result.message = displayPath(place.foreign) +
                         " is not as notes-export wrote it, and stays as it is.\n";
    }
    if (!page.recordsError.empty()) {
        result.message +=
            (place.ours && place.ours->hasRecords()
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
