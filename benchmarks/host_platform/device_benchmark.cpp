// Exports and imports on the host platform, compared with lower bounds.
#include <benchmark/benchmark.h>
#include <openssl/evp.h>

#include <filesystem>

#include "device.h"
#include "document.h"
#include "floors.h"
#include "job.h"
#include "sample_notes.h"
#include "text/base64.h"

namespace {

constexpr char kWritten[] = "written.html";

template <class Work, class CleanUp>
double secondsOfRound(Work work, CleanUp cleanUp) {
    const double seconds = secondsOf(work);
    cleanUp();
    return seconds;
}

template <MakeBook kMakeBook>
double exportBookOf(std::size_t size) {
    enterCollection(kMakeBook, size);
    return secondsOfRound(exportBook, removeExport);
}

template <void (*kReadRows)()>
double exportFloor(std::size_t notes) {
    enterCollection(bookOfNotes, notes);
    const std::string document = contentOf(kDocument);
    const std::string dump = textOfDump(document);
    const auto work = [&] {
        kReadRows();
        if (kReadRows == readRowsAsAsked) {
            compress(dump);
        }
        writeAtOnce(document, kWritten);
    };
    return secondsOfRound(work, [] { std::filesystem::remove(kWritten); });
}

// Calls `work` while the device's reader database is moved away.
template <class Work>
double onEmptyDevice(Work work) {
    hideReaderDatabase();
    const double seconds = secondsOfRound(work, removeReaderDatabase);
    showReaderDatabase();
    return seconds;
}

double importNotes(std::size_t notes) {
    enterCollection(bookOfNotes, notes);
    return onEmptyDevice(importDocument);
}

double importFloor(std::size_t notes) {
    enterCollection(bookOfNotes, notes);
    const host::BookRecord book = bookOfNotes(notes);
    return onEmptyDevice([&] { insertRows(book); });
}

void createAndFree(benchmark::State& state) {
    enterCollection(bookOfNotes, 1000);
    for ([[maybe_unused]] auto round : state) {
        createAndFreeExporter();
    }
}

void nameFile(benchmark::State& state) {
    enterCollection(bookOfNotes, 1000);
    for ([[maybe_unused]] auto round : state) {
        queryFileName();
    }
}

double base64(std::size_t size) {
    const std::string bytes = samplePicture(size);
    return secondsOf([&] { benchmark::DoNotOptimize(host::encodeBase64(bytes)); });
}

double base64Floor(std::size_t size) {
    const std::string bytes = samplePicture(size);
    return secondsOf([&] {
        std::string text((bytes.size() + 2) / 3 * 4 + 1, '\0');
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()));
        benchmark::DoNotOptimize(text.data());
    });
}

constexpr Job exportNotes = exportBookOf<bookOfNotes>;
constexpr Job exportComment = exportBookOf<bookOfComment>;
constexpr Job exportPictures = exportBookOf<bookOfPictures>;

BENCHMARK_CAPTURE(timed, hostExport, exportNotes)->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(timed, hostImport, importNotes)->Arg(10000)->UseManualTime();
BENCHMARK_CAPTURE(ratio, hostExportToFloorAsAsked, exportNotes,
                  exportFloor<readRowsAsAsked>)
    ->Arg(10000);
BENCHMARK_CAPTURE(ratio, hostExportToFloorInOneGo, exportNotes,
                  exportFloor<readRowsInOneGo>)
    ->Arg(10000);
BENCHMARK_CAPTURE(ratio, hostImportToFloor, importNotes, importFloor)->Arg(10000);
BENCHMARK_CAPTURE(ratio, base64ToOpenSsl, base64, base64Floor)->Arg(400000);
BENCHMARK_CAPTURE(growth, hostExportNotes, exportNotes)->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, hostImportNotes, importNotes)->Apply(growsTenfold);
BENCHMARK_CAPTURE(growth, hostExportComment, exportComment)->Args({1000000, 10000000});
BENCHMARK_CAPTURE(growth, hostExportPictures, exportPictures)->Args({5, 50});
BENCHMARK(createAndFree);
BENCHMARK(nameFile);

}  // namespace
