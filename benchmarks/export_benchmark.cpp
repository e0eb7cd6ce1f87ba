// The library's whole export on a platform that costs next to nothing.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "fresh_file.h"
#include "job.h"
#include "rendering.h"
#include "timing_device.h"
#include "utilities/serialization_utils.h"

namespace {

using timing_platform::device;
using timing_platform::setNoteCount;
using veloran::NoteOrder;
using veloran::NotesExporterImpl;
using veloran::utilities::SerializationUtils;

constexpr char kBook[] = "626f6f6b";

double exportDevice(const NoteOrder& before = {}) {
    NotesExporterImpl exporter;
    exporter.setExportDir(std::filesystem::temp_directory_path());
    return FreshFile(exporter.getExportFilename(kBook))
        .secondsOfWriting([&](const char* /*path*/) {
            exporter.export_bookmarks_to_html(kBook, {}, before);
        });
}

double exportNotes(std::size_t count) {
    setNoteCount(count);
    return exportDevice();
}

double exportInOrderOfPredicate(std::size_t count) {
    setNoteCount(count);
    return exportDevice([](long long a, long long b) { return b < a; });
}

double exportComment(std::size_t bytes) {
    setNoteCount(1);
    device().notes = {sampleNotes().front()};
    device().notes.front().comment = sampleLongComment(bytes);
    return exportDevice();
}

double exportPictures(std::size_t count) {
    setNoteCount(count);
    device().notes = {sampleNotes().front()};
    device().notes.front().picture = samplePicture(400000);
    return exportDevice();
}

double exportWithTakenNames(std::size_t count) {
    setNoteCount(1);
    device().takenNames = count;
    return exportDevice();
}

double renderNotes(std::size_t count) {
    setNoteCount(count);
    const RecordedNotes notes = timing_platform::fetchedNotes();
    return FreshFile().secondsOfWriting([&](const char* path) { render(path, notes); });
}

// The notes are fetched and rendered, which no export can leave out, and nothing else.
double fetchAndRender(std::size_t count) {
    setNoteCount(count);
    veloran::utilities::ReaderDbManager manager;
    return FreshFile().secondsOfWriting([&](const char* path) {
        RecordedNotes notes;
        for (const auto& key : manager.getBookNotesHashUUIDs(kBook, true)) {
            notes.push_back(manager.getNote(key.first));
        }
        render(path, notes);
    });
}

double dumpElement(std::size_t bytes) {
    setNoteCount(0);
    device().payload = samplePicture(bytes);
    NotesExporterImpl exporter;
    veloran::FailStopFile file("/dev/null");
    Writer writer(file);
    return secondsOf([&] { exporter.writeBinaryDump(writer, 1, {}); });
}

double dumpEncoding(std::size_t bytes) {
    const std::string payload = samplePicture(bytes);
    return secondsOf(
        [&] { benchmark::DoNotOptimize(SerializationUtils::ToBase64(payload)); });
}

BENCHMARK_CAPTURE(timed, exportNotes, exportNotes)
    ->Arg(1)
    ->Arg(1000)
    ->Arg(100000)
    ->UseManualTime();
BENCHMARK_CAPTURE(ratio, exportToRendering, exportNotes, renderNotes)
    ->Arg(1000)
    ->Arg(100000);
BENCHMARK_CAPTURE(ratio, exportToFetchingAndRendering, exportNotes, fetchAndRender)
    ->Arg(1000)
    ->Arg(100000);
BENCHMARK_CAPTURE(growth, exportNotes, exportNotes)->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, exportInOrderOfPredicate, exportInOrderOfPredicate)
    ->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, exportComment, exportComment)->Args({1000000, 10000000});
BENCHMARK_CAPTURE(growth, exportPictures, exportPictures)->Args({50, 500});
BENCHMARK_CAPTURE(growth, exportWithTakenNames, exportWithTakenNames)->Args({20, 200});
BENCHMARK_CAPTURE(ratio, dumpElementToItsEncoding, dumpElement, dumpEncoding)->Arg(1000000);

}  // namespace
