// Rendering of notes, compared with well-known libraries that write the same markup, and
// with one write of the finished bytes.
#include "rendering.h"

#include <benchmark/benchmark.h>

#include <fstream>
#include <sstream>

#include "fresh_file.h"
#include "peers.h"

namespace {

using peers::Peer;

std::size_t noteCount(const benchmark::State& state) {
    return static_cast<std::size_t>(state.range(0));
}

RecordedNotes recordsOnDevice(std::size_t count) {
    setNoteCount(count);
    return fetchedNotes();
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

// Fails if a peer writes another document, apart from line ends.
void check(benchmark::State& state, const Peer& peer, const RecordedNotes& notes) {
    const std::size_t ours = rendered(notes).size(), theirs = peer.toMemory(notes);
    if (theirs < ours * 95 / 100 || theirs > ours * 115 / 100) {
        state.SkipWithError("writes another document");
    }
}

template <const Peer& kPeer>
void peerToMemory(benchmark::State& state) {
    const RecordedNotes notes = recordsOnDevice(noteCount(state));
    check(state, kPeer, notes);
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(kPeer.toMemory(notes));
    }
}

template <const Peer& kPeer>
void peerToFile(benchmark::State& state) {
    const RecordedNotes notes = recordsOnDevice(noteCount(state));
    check(state, kPeer, notes);
    writeAnew(state, [&](const char* path) { kPeer.toFile(notes, path); });
}

const std::pair<const char*, void (*)(benchmark::State&)> kBenchmarks[] = {
    {"finished/memory", finishedToMemory},
    {"finished/file", finishedToFile},
    {"render/memory", renderToMemory},
    {"render/memory/libxml2", peerToMemory<peers::libxml2>},
    {"render/memory/tinyxml2", peerToMemory<peers::tinyxml2>},
    {"render/file", renderToFile},
    {"render/file/libxml2", peerToFile<peers::libxml2>},
    {"render/file/tinyxml2", peerToFile<peers::tinyxml2>},
};

[[maybe_unused]] const bool added = [] {
    for (const auto& [name, measure] : kBenchmarks) {
        benchmark::RegisterBenchmark(name, measure)->Arg(1000)->Arg(100000);
    }
    return true;
}();

}  // namespace
