// Whole exports and imports on the stand-in, beside what no program can leave out.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <openssl/evp.h>

#include <filesystem>

#include "base64.h"
#include "device.h"
#include "document.h"
#include "floors.h"
#include "growth.h"
#include "sample_notes.h"

namespace {

constexpr char kWritten[] = "written.html";

// Each round finds the heap as a new process does, not as a far larger job left it.
template <class Job, class CleanUp>
void measure(benchmark::State& state, Job job, CleanUp cleanUp) {
    for ([[maybe_unused]] auto round : state) {
        job();
        state.PauseTiming();
        cleanUp();
        malloc_trim(0);
        state.ResumeTiming();
    }
}

void enter(const benchmark::State& state, MakeBook makeBook) {
    enterDevice(makeBook, static_cast<std::size_t>(state.range(0)));
}

void exports(benchmark::State& state, MakeBook makeBook) {
    enter(state, makeBook);
    measure(state, exportBook, removeExport);
}

void exportFloor(benchmark::State& state, void (*readRows)()) {
    enter(state, bookOfNotes);
    const std::string document = contentOf(kDocument);
    const std::string dump = textOfDump(document);
    const auto job = [&] {
        readRows();
        if (readRows == readRowsAsAsked) {
            compress(dump);
        }
        writeAtOnce(document, kWritten);
    };
    measure(state, job, [] { std::filesystem::remove(kWritten); });
}

// Puts the reader database aside meanwhile: other benchmarks export it.
template <class Job>
void onEmptyDevice(benchmark::State& state, Job job) {
    hideReaderDatabase();
    measure(state, job, removeReaderDatabase);
    showReaderDatabase();
}

void imports(benchmark::State& state) {
    enter(state, bookOfNotes);
    onEmptyDevice(state, importDocument);
}

void importFloor(benchmark::State& state) {
    enter(state, bookOfNotes);
    const host::BookRecord book = bookOfNotes(static_cast<std::size_t>(state.range(0)));
    onEmptyDevice(state, [&] { insertRows(book); });
}

void createAndFree(benchmark::State& state) {
    enterDevice(bookOfNotes, 1000);
    for ([[maybe_unused]] auto round : state) {
        createAndFreeExporter();
    }
}

void nameFile(benchmark::State& state) {
    enterDevice(bookOfNotes, 1000);
    for ([[maybe_unused]] auto round : state) {
        askForFileName();
    }
}

void base64(benchmark::State& state) {
    const std::string bytes = samplePicture(400000);
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(host::encodeBase64(bytes));
    }
}

void base64Floor(benchmark::State& state) {
    const std::string bytes = samplePicture(400000);
    for ([[maybe_unused]] auto round : state) {
        std::string text(bytes.size() * 2, '\0');
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data()),
                        static_cast<int>(bytes.size()));
        benchmark::DoNotOptimize(text.data());
    }
}

BENCHMARK_CAPTURE(exports, notes, bookOfNotes)
    ->Apply(grows<1000, 10000, 30000, 100000, 300000>);
BENCHMARK_CAPTURE(exports, comment, bookOfComment)->Apply(grows<1000000, 10000000>);
BENCHMARK_CAPTURE(exports, pictures, bookOfPictures)->Apply(grows<50, 500>);
BENCHMARK_CAPTURE(exportFloor, strict, readRowsInOneGo)->Arg(10000);
BENCHMARK_CAPTURE(exportFloor, asked, readRowsAsAsked)->Arg(10000);
BENCHMARK(imports)->Apply(grows<1000, 10000, 30000, 100000, 300000>);
BENCHMARK(importFloor)->Arg(10000);
BENCHMARK(createAndFree);
BENCHMARK(nameFile);
BENCHMARK(base64);
BENCHMARK(base64Floor);

}  // namespace
