// A file that each round of a benchmark writes anew.
#pragma once

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <utility>

class FreshFile {
public:
    explicit FreshFile(std::filesystem::path path = std::filesystem::temp_directory_path() /
                                                    ("notes-export-benchmark-" +
                                                     std::to_string(getpid())))
        : path_(std::move(path)) {}

    // Runs `write(path)` with the clock on, and removes the file with the clock off.
    template <class Write>
    void writeAnew(benchmark::State& state, Write write) const {
        for ([[maybe_unused]] auto round : state) {
            write(path_.c_str());
            state.PauseTiming();
            if (!std::filesystem::remove(path_)) {
                state.SkipWithError("no file was written");
                break;
            }
            state.ResumeTiming();
        }
    }

private:
    std::filesystem::path path_;
};
