// Exports from a device in memory.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "fresh_file.h"
#include "job.h"
#include "rendering.h"
#include "sample_notes.h"
#include "utilities/serialization_utils.h"

namespace {

using veloran::NoteOrder;
using veloran::NotesExporterImpl;
using veloran::utilities::SerializationUtils;

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
    onlyNote().comment = sampleLongComment(bytes);
    return exportDevice();
}

double exportPictures(std::size_t count) {
    setNoteCount(count);
    const std::string picture = samplePicture(400000);
    for (memory::StoredNote& note : memory::device().books.front().notes) {
        note.picture = picture;
    }
    return exportDevice();
}

// Returns the time to fetch and render the notes, without which no export is possible.
double fetchAndRender(std::size_t count) {
    setNoteCount(count);
    return FreshFile().secondsOfWriting(
        [](const char* path) { render(path, fetchedNotes()); });
}

double dumpElement(std::size_t bytes) {
    setNoteCount(0);
    memory::device().payload = samplePicture(bytes);
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
BENCHMARK_CAPTURE(ratio, exportToFetchingAndRendering, exportNotes, fetchAndRender)
    ->Arg(1000)
    ->Arg(100000);
BENCHMARK_CAPTURE(growth, exportNotes, exportNotes)->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, exportInOrderOfPredicate, exportInOrderOfPredicate)
    ->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, exportComment, exportComment)->Args({1000000, 10000000});
BENCHMARK_CAPTURE(growth, exportPictures, exportPictures)->Args({5, 50});
BENCHMARK_CAPTURE(ratio, dumpElementToItsEncoding, dumpElement, dumpEncoding)->Arg(1000000);

}  // namespace
