#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <unordered_map>

#include "commands/commands.h"
#include "device/book_notes.h"
#include "device/exporter.h"
#include "device/unknown_book.h"
#include "page/fresh_folder.h"
#include "page/move_into_place.h"
#include "page/page_checks.h"
#include "store/database_paths.h"
#include "terminal/complaint.h"
#include "terminal/one_line.h"
#include "terminal/progress_line.h"

namespace {

using veloran::utilities::Note;

bool byId(void* /*unused*/, long long first, long long second) {
    return static_cast<unsigned long long>(first) < static_cast<unsigned long long>(second);
}

namespace fs = std::filesystem;

// The path as the caller of the client can use it.
std::string shown(const ExportRequest& request, const std::string& path) {
    return (fs::path(request.deviceFolder) / path).string();
}

// Programs get every byte; a terminal would obey some of them.
std::string printable(const std::string& path) {
    return isatty(STDOUT_FILENO) == 1 ? oneLine(path) : path;
}

using Timestamps = std::unordered_map<long long, std::time_t>;

bool byNewest(void* timestamps, long long first, long long second) {
    auto& times = *static_cast<Timestamps*>(timestamps);
    return times[first] > times[second];
}

Timestamps timestampsOf(const std::vector<Note>& notes) {
    Timestamps result;
    for (const Note& note : notes) {
        result[static_cast<long long>(note.noteId)] = note[Note::Tag::Uuid].timestamp;
    }
    return result;
}

void checkThatNotesExist(const ExportRequest& request, const std::vector<Note>& notes) {
    for (const unsigned long long id : request.noteIds) {
        const auto hasId = [id](const Note& note) { return note.noteId == id; };
        if (std::none_of(notes.begin(), notes.end(), hasId)) {
            throw Complaint("The book has no note " + std::to_string(id) +
                            ". \"notes-export notes " + request.hash + "\" lists them.");
        }
    }
}

// The library would wait for a pipe without end, and read a device without end.
void complainUnlessStyleSheetIsFile(const ExportRequest& request) {
    const char* path = host::kNoteStyleSheetPath;
    std::error_code failure;
    const fs::file_status status = fs::status(path, failure);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw Complaint("The style sheet " + shown(request, path) +
                        " is not a file. Remove it, or put a file in its place.");
    }
}

Timestamps timestampsFor(const ExportRequest& request) {
    if (request.noteIds.empty() && request.order != "newest") {
        return {};
    }
    const std::vector<Note> notes = notesOf(request.hash);
    checkThatNotesExist(request, notes);
    return timestampsOf(notes);
}

void callLibrary(const Exporter& exporter, const ExportRequest& request,
                 Timestamps& times) {
    const notes_exporter_before before = request.order == "id"       ? byId
                                         : request.order == "newest" ? byNewest
                                                                     : nullptr;
    if (notes_exporter_export_bookmarks_to_html(
            exporter.handle(), request.hash.c_str(), request.noteIds.data(),
            request.noteIds.size(), before, &times) != 0) {
        complainAboutUnknownBook(request.hash);
    }
}

// Only a title is made fit for a file's name; a hash that stands in for it may be any text.
void complainUnlessWithin(const Exporter& exporter, const std::string& file) {
    if (file.find('/', exporter.directory().size() + 1) != std::string::npos) {
        throw Complaint(
            "The book has no title, and its hash cannot be the name of a file.");
    }
}

// The name that is free is asked for again as long as others take it.
std::string moveToFreeName(const Exporter& exporter, const ExportRequest& request,
                           const std::string& page) {
    std::string path;
    do {
        path = exporter.fileName(request.hash);
    } while (!moveIntoPlace(page, path, shown(request, path)));
    return path;
}

struct Exported {
    std::string path;        // as it is printed
    std::string unrecorded;  // why it carries no records; empty when it does
};

// The library finds a free name and then opens it, replacing what came there in between:
// it writes where nobody else does.
Exported exported(const ExportRequest& request) {
    const ProgressLine progress("Exporting");
    Timestamps times = timestampsFor(request);
    Exporter exporter(request.directory);
    complainUnlessKnown(request.hash);
    complainUnlessStyleSheetIsFile(request);
    const std::string directory = exporter.directory();
    FreshFolder folder(directory);

    exporter.setDirectory(folder.path());
    const std::string page = exporter.fileName(request.hash);
    complainUnlessWithin(exporter, page);
    folder.expect(page);
    callLibrary(exporter, request, times);
    complainUnlessWhole(page,
                        shown(request, directory + page.substr(folder.path().size())));
    const std::string unrecorded = whyWithoutRecords(
        page, request.hash, {request.noteIds.begin(), request.noteIds.end()});

    exporter.setDirectory(directory);
    return {shown(request, moveToFreeName(exporter, request, page)), unrecorded};
}

}  // namespace

void exportNotes(const ExportRequest& request) {
    static_cast<void>(
        std::signal(SIGXFSZ, SIG_IGN));  // a file at its size limit is a failed write
    const Exported result = exported(request);
    std::cout << printable(result.path) << '\n';
    if (!result.unrecorded.empty()) {
        throw Complaint("The page carries no records that an import could read: " +
                        result.unrecorded + '.');
    }
}

void printName(const ExportRequest& request) {
    complainUnlessKnown(request.hash);
    const std::string path = Exporter(request.directory).fileName(request.hash);
    std::cout << printable(shown(request, path)) << '\n';
}
