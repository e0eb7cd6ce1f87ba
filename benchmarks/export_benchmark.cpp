// The library's whole export on a platform that costs next to nothing.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "export/fail_stop_file.h"
#include "fresh_file.h"
#include "growth.h"
#include "memory_device.h"
#include "rendering.h"
#include "utilities/serialization_utils.h"

namespace {

using memory_platform::device;
using veloran::NoteOrder;
using veloran::NotesExporterImpl;
using veloran::utilities::SerializationUtils;

constexpr char kBook[] = "626f6f6b";

std::size_t size(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

void exportDevice(benchmark::State& state, const NoteOrder& before = {}) {
    NotesExporterImpl exporter;
    exporter.setExportDir(std::filesystem::temp_directory_path());
    FreshFile(exporter.getExportFilename(kBook))
        .writeAnew(state, [&](const char* /*path*/) {
            exporter.export_bookmarks_to_html(kBook, {}, before);
        });
    device() = {};
}

void exportNotes(benchmark::State& state) {
    memory_platform::setNoteCount(size(state));
    exportDevice(state);
}

void exportInOrderOfPredicate(benchmark::State& state) {
    memory_platform::setNoteCount(size(state));
    exportDevice(state, [](long long a, long long b) { return b < a; });
}

void exportComment(benchmark::State& state) {
    memory_platform::setNoteCount(1);
    device().notes = {sampleNotes().front()};
    device().notes.front().comment = sampleLongComment(size(state));
    exportDevice(state);
}

void exportPictures(benchmark::State& state) {
    memory_platform::setNoteCount(size(state));
    device().notes = {sampleNotes().front()};
    device().notes.front().picture = samplePicture(400000);
    exportDevice(state);
}

void exportWithTakenNames(benchmark::State& state) {
    memory_platform::setNoteCount(1);
    device().takenNames = size(state);
    exportDevice(state);
}

// The notes are fetched and rendered, which no export can leave out, and nothing else.
void fetchAndRender(benchmark::State& state) {
    memory_platform::setNoteCount(size(state));
    veloran::utilities::ReaderDbManager manager;
    FreshFile().writeAnew(state, [&](const char* path) {
        RecordedNotes notes;
        for (const auto& key : manager.getBookNotesHashUUIDs(kBook, true)) {
            notes.push_back(manager.getNote(key.first));
        }
        veloran::FailStopFile file(path);
        render(file, notes);
        file.close();
    });
}

void dumpElement(benchmark::State& state) {
    device().payload = samplePicture(size(state));
    NotesExporterImpl exporter;
    veloran::FailStopFile file("/dev/null");
    Writer writer(file);
    for ([[maybe_unused]] auto round : state) {
        exporter.writeBinaryDump(writer, 1, {});
    }
    device() = {};
}

void dumpEncoding(benchmark::State& state) {
    const std::string payload = samplePicture(size(state));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(SerializationUtils::ToBase64(payload));
    }
}

BENCHMARK(exportNotes)->Apply(grows<1000, 10000, 30000, 100000, 300000>);
BENCHMARK(exportInOrderOfPredicate)->Apply(grows<1000, 10000, 30000, 100000, 300000>);
BENCHMARK(fetchAndRender)->Arg(1000)->Arg(100000);
BENCHMARK(exportComment)->Apply(grows<1000000, 10000000>);
BENCHMARK(exportPictures)->Apply(grows<50, 500>);
BENCHMARK(exportWithTakenNames)->Apply(grows<20, 200>);
BENCHMARK(dumpElement)->Arg(1000000);
BENCHMARK(dumpEncoding)->Arg(1000000);

}  // namespace
