#include "device.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "notes_export/notes_export.h"
#include "sample_notes.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/note_tags.h"
#include "store/reader_store.h"

namespace {

namespace fs = std::filesystem;

constexpr char kBookHash[] = "626f6f6b";
constexpr char kExport[] = "Notes/Book.html";
constexpr char kHidden[] = "hidden.db";

struct Scratch {
    ~Scratch() {
        fs::current_path(fs::temp_directory_path());
        fs::remove_all(folder);
    }
    const fs::path folder =
        fs::temp_directory_path() / ("notes-export-benchmark-" + std::to_string(getpid()));
};

class Exporter {
public:
    Exporter() { notes_exporter_set_export_dir(handle_, "Notes"); }
    ~Exporter() { free_notes_exporter(handle_); }
    Exporter(const Exporter&) = delete;
    Exporter& operator=(const Exporter&) = delete;

    notes_exporter* get() const { return handle_; }

private:
    notes_exporter* handle_ = new_notes_exporter();
};

// Aborts on failure, because a failed job is fast.
void check(bool holds) {
    if (!holds) {
        std::abort();
    }
}

std::string jsonOf(const std::string& key, const std::string& uri) {
    return "{\"" + key + "\":\"" + uri + "\"}";
}

host::NoteRecord note(std::size_t index, const std::string& text) {
    const std::string uuid =
        sampleNotes()[index % sampleNotes().size()].uuid + "-" + std::to_string(index);
    const std::string position = samplePosition(index);
    const auto time = static_cast<std::int64_t>(1741339501 + index);
    return {uuid,
            {{host::kUuidTag, uuid, {}, time},
             {host::kAnchorTag, "", jsonOf("anchor", position), time},
             {host::kColorTag, "yellow", {}, time},
             {host::kTextTag, text, {}, time},
             {host::kRangeTag, "", jsonOf("begin", position), time}}};
}

host::BookRecord emptyBook() { return {kBookHash, "Book", "/books/Book.epub", {}}; }

void exportInOrder(notes_exporter_before before) {
    const Exporter exporter;
    check(notes_exporter_export_bookmarks_to_html(exporter.get(), kBookHash, nullptr, 0,
                                                  before, nullptr) == 0);
}

}  // namespace

host::BookRecord bookOfNotes(std::size_t notes) {
    host::BookRecord book = emptyBook();
    for (std::size_t index = 0; index < notes; ++index) {
        book.notes.push_back(note(index, sampleText(index)));
        if (index % 2 == 0) {
            book.notes.back().tags.push_back(
                {host::kCommentTag, sampleNotes().front().comment, {}, 1741339501});
        }
    }
    return book;
}

host::BookRecord bookOfPictures(std::size_t notes) {
    const std::string picture = samplePicture(400000);
    host::BookRecord book = emptyBook();
    for (std::size_t index = 0; index < notes; ++index) {
        book.notes.push_back(note(index, ""));
        book.notes.back().tags.push_back({host::kImageTag, picture, {}, 1741339501});
    }
    return book;
}

host::BookRecord bookOfComment(std::size_t bytes) {
    host::BookRecord book = emptyBook();
    book.notes.push_back(note(0, ""));
    book.notes.back().tags.push_back(
        {host::kCommentTag, sampleLongComment(bytes), {}, 1741339501});
    return book;
}

void enterCollection(MakeBook makeBook, std::size_t size) {
    static const Scratch scratch;
    const auto kind = std::to_string(reinterpret_cast<std::uintptr_t>(makeBook));
    const fs::path folder = scratch.folder / kind / std::to_string(size);
    const bool present = fs::exists(folder);
    fs::create_directories(folder);
    fs::current_path(folder);
    if (!present) {
        host::LibraryStore(host::kLibraryDatabasePath)
            .putBook({"book", "Book", "Author", "/books/Book.epub"});
        host::ReaderStore(host::kReaderDatabasePath).merge({makeBook(size)});
        exportBook();
        fs::rename(kExport, kDocument);
    }
}

void removeReaderDatabase() { fs::remove(host::kReaderDatabasePath); }

void hideReaderDatabase() { fs::rename(host::kReaderDatabasePath, kHidden); }

void showReaderDatabase() { fs::rename(kHidden, host::kReaderDatabasePath); }

void createAndFreeExporter() { const Exporter exporter; }

void queryFileName() {
    char name[256];
    const Exporter exporter;
    notes_exporter_get_exported_file_name(exporter.get(), name, sizeof name, kBookHash);
}

void exportBook() { exportInOrder(nullptr); }

void exportBookBackwards() {
    exportInOrder([](void* /*data*/, long long a, long long b) { return b < a; });
}

void removeExport() { check(fs::remove(kExport)); }

void importDocument() {
    const Exporter exporter;
    check(notes_exporter_import_from_file(exporter.get(), kDocument) > 0);
}
