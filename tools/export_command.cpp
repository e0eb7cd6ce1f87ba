#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <unordered_map>

#include "book_notes.h"
#include "commands.h"
#include "complaint.h"
#include "exporter.h"
#include "progress_line.h"
#include "unknown_book.h"

namespace {

using veloran::utilities::Note;

bool byId(void* /*unused*/, long long first, long long second) {
    return static_cast<unsigned long long>(first) < static_cast<unsigned long long>(second);
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

int callLibrary(const Exporter& exporter, const ExportRequest& request, Timestamps& times) {
    const notes_exporter_before before = request.order == "id"       ? byId
                                         : request.order == "newest" ? byNewest
                                                                     : nullptr;
    return notes_exporter_export_bookmarks_to_html(exporter.handle(), request.hash.c_str(),
                                                   request.noteIds.data(),
                                                   request.noteIds.size(), before, &times);
}

// The library does not report what became of the file.
void checkThatFileIsWhole(const std::string& path, const std::string& shownPath) {
    constexpr char kEnd[] = "</html>";
    constexpr std::streamoff kLength = sizeof kEnd - 1;
    std::ifstream file(path, std::ios::binary);
    file.seekg(-kLength, std::ios::end);
    char end[sizeof kEnd] = {};
    file.read(end, kLength);
    if (!file || std::string(end) != kEnd) {
        throw Complaint("Could not write all of " + shownPath +
                        ": is there room, may you write there, is the title too long?");
    }
}

// The path as the caller of the client can use it.
std::string shown(const ExportRequest& request, const std::string& path) {
    return (std::filesystem::path(request.deviceFolder) / path).string();
}

// The path of the file that now holds the notes.
std::string exported(const ExportRequest& request) {
    const ProgressLine progress("Exporting");
    Timestamps times;
    if (!request.noteIds.empty() || request.order == "newest") {
        const std::vector<Note> notes = notesOf(request.hash);
        checkThatNotesExist(request, notes);
        times = timestampsOf(notes);
    }
    const Exporter exporter(request.directory);
    const std::string path = exporter.fileName(request.hash);
    if (callLibrary(exporter, request, times) != 0) {
        complainAboutUnknownBook(request.hash);
    }
    checkThatFileIsWhole(path, shown(request, path));
    return shown(request, path);
}

}  // namespace

void exportNotes(const ExportRequest& request) { std::cout << exported(request) << '\n'; }

void printName(const ExportRequest& request) {
    complainUnlessKnown(request.hash);
    std::cout << shown(request, Exporter(request.directory).fileName(request.hash)) << '\n';
}
