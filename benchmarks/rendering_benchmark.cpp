// Writing notes, beside well-known libraries that write the same markup, and beside writing
// the finished bytes at once. "write" starts from texts that are ready, "render" from the
// platform's records.
#include "rendering.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "fresh_file.h"
#include "peers.h"
#include "timing_device.h"

namespace {

using peers::Peer;

std::size_t noteCount(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

RecordedNotes recordsOnDevice(std::size_t count) {
    timing_platform::setNoteCount(count);
    return timing_platform::fetchedNotes();
}

std::string rendered(const RecordedNotes& notes) {
    std::ostringstream stream;
    render(stream, notes);
    return stream.str();
}

template <class Write>
void writeAnew(benchmark::State& state, Write write) {
    const FreshFile file;
    for ([[maybe_unused]] auto round : state) {
        write(file.path());
        state.PauseTiming();
        file.remove();
        state.ResumeTiming();
    }
}

void finishedToMemory(benchmark::State& state) {
    const std::string bytes = rendered(recordsOnDevice(noteCount(state)));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(std::string(bytes).data());
    }
}

void finishedToFile(benchmark::State& state) {
    const std::string bytes = rendered(recordsOnDevice(noteCount(state)));
    writeAnew(state, [&](const char* path) {
        std::ofstream(path).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    });
}

void renderToMemory(benchmark::State& state) {
    const RecordedNotes notes = recordsOnDevice(noteCount(state));
    for ([[maybe_unused]] auto round : state) {
        std::ostringstream stream;
        render(stream, notes);
        benchmark::DoNotOptimize(stream.tellp());
    }
}

void renderToFile(benchmark::State& state) {
    const RecordedNotes notes = recordsOnDevice(noteCount(state));
    writeAnew(state, [&](const char* path) { render(path, notes); });
}

void toMemory(benchmark::State& state, const Peer& peer, NoteSource& notes) {
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(peer.toMemory(notes));
    }
}

void toFile(benchmark::State& state, const Peer& peer, NoteSource& notes) {
    writeAnew(state, [&](const char* path) { peer.toFile(notes, path); });
}

using Measure = void (*)(benchmark::State&, const Peer&, NoteSource&);

// What wrote something else would prove nothing; the peers differ in line ends only.
void ofReadyNotes(benchmark::State& state, const Peer& peer, Measure measure) {
    ReadyNotes notes(noteCount(state));
    const std::size_t ours = peers::writer.toMemory(notes);
    const std::size_t theirs = peer.toMemory(notes);
    if (theirs < ours * 95 / 100 || theirs > ours * 115 / 100) {
        state.SkipWithError("writes another document");
    }
    measure(state, peer, notes);
}

void ofRecords(benchmark::State& state, const Peer& peer, Measure measure) {
    const RecordedNotes records = recordsOnDevice(noteCount(state));
    NotesOfRecords notes(records);
    measure(state, peer, notes);
}

void add(const std::string& name, void (*measure)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name.c_str(), measure)->Arg(1000)->Arg(100000);
}

template <class... Arguments>
void add(const std::string& name, const Peer& peer, const Arguments&... arguments) {
    benchmark::RegisterBenchmark((name + peer.name).c_str(), arguments...)
        ->Arg(1000)
        ->Arg(100000);
}

[[maybe_unused]] const bool added = [] {
    add("finished/memory", finishedToMemory);
    add("finished/file", finishedToFile);
    add("render/memory", renderToMemory);
    add("render/file", renderToFile);
    for (const Peer* peer :
         {&peers::writer, &peers::libxml2, &peers::tinyxml2, &peers::pugixml}) {
        add("write/memory/", *peer, ofReadyNotes, *peer, toMemory);
        add("write/file/", *peer, ofReadyNotes, *peer, toFile);
        if (peer != &peers::writer) {
            add("render/memory/", *peer, ofRecords, *peer, toMemory);
            add("render/file/", *peer, ofRecords, *peer, toFile);
        }
    }
    return true;
}();

}  // namespace
