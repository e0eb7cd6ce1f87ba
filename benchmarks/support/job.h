// Measurement and comparison of jobs.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstddef>
#include <functional>
#include <vector>

// Returns the seconds of one round, without preparation and clean-up.
using Job = double (*)(std::size_t size);

// Keeps freed memory in the process. Otherwise the time depends mostly on how fast the
// system clears pages.
inline const bool memoryStays =
    mallopt(M_MMAP_MAX, 0) == 1 && mallopt(M_TRIM_THRESHOLD, INT_MAX) == 1;

template <class Work>
double secondsOf(Work work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline void timed(benchmark::State& state, Job job) {
    for ([[maybe_unused]] auto round : state) {
        state.SetIterationTime(job(static_cast<std::size_t>(state.range(0))));
    }
}

// Reports the time of `other` divided by that of `base` as "ratio". They run alternately,
// so that other load slows both down equally.
inline void compareByTurns(benchmark::State& state, const std::function<double()>& base,
                           const std::function<double()>& other) {
    std::vector<double> ratios;
    for ([[maybe_unused]] auto round : state) {
        const double before = base() + base();
        const double seconds = other();
        const double after = base() + base();
        ratios.push_back(seconds / ((before + after) / 4));
    }
    const auto middle = ratios.begin() + static_cast<std::ptrdiff_t>(ratios.size() / 2);
    std::nth_element(ratios.begin(), middle, ratios.end());
    state.counters["ratio"] = *middle;
}

// Compares two jobs of one size.
inline void ratio(benchmark::State& state, Job job, Job base) {
    const auto size = static_cast<std::size_t>(state.range(0));
    compareByTurns(
        state, [&] { return base(size); }, [&] { return job(size); });
}

// Compares one job at two sizes. The large one runs first, so that both find enough memory.
inline void growth(benchmark::State& state, Job job) {
    const auto small = static_cast<std::size_t>(state.range(0));
    const auto large = static_cast<std::size_t>(state.range(1));
    job(large);
    compareByTurns(
        state, [&] { return job(small); }, [&] { return job(large); });
}

inline void growsTenfold(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({1000, 10000})->Args({10000, 100000})->Args({30000, 300000});
}
