// Runs a job of the library or of a peer: library_instructions JOB NOTES
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "counted.h"
#include "peers.h"
#include "rendering.h"

namespace {

void renders() {
    const RecordedNotes notes = fetchedNotes();
    counted([&] { render("/dev/null", notes); });
}

void exports(const veloran::NoteOrder& before) {
    veloran::NotesExporterImpl exporter;
    exporter.setExportDir(".");
    const std::string path = exporter.getExportFilename(kBook);
    counted([&] { exporter.export_bookmarks_to_html(kBook, {}, before); });
    std::remove(path.c_str());
}

void exportsByPage() { exports({}); }

void exportsInReverse() {
    exports([](long long a, long long b) { return b < a; });
}

template <const peers::Peer& kPeer>
void rendersWith() {
    const RecordedNotes notes = fetchedNotes();
    counted([&] { kPeer.toMemory(notes); });
}

const std::map<std::string, void (*)()> kJobs = {
    {"render", renders},
    {"render/libxml2", rendersWith<peers::libxml2>},
    {"render/tinyxml2", rendersWith<peers::tinyxml2>},
    {"export", exportsByPage},
    {"export/predicate", exportsInReverse},
};

}  // namespace

int main(int count, char** arguments) {
    const auto job = kJobs.find(count == 3 ? arguments[1] : "");
    if (job == kJobs.end()) {
        return EXIT_FAILURE;
    }
    setNoteCount(std::stoul(arguments[2]));
    job->second();
    return EXIT_SUCCESS;
}
