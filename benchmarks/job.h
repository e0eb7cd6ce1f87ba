// Jobs of a size, timed and compared.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

// The seconds that one round takes; what comes before and after it is not counted.
using Job = double (*)(std::size_t size);

// Whether each round finds the heap as a new process does, rather than as the last one left
// it.
inline bool heapIsFresh = false;

template <class Work>
double secondsOf(Work work) {
    if (heapIsFresh) {
        malloc_trim(0);
    }
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline void timed(benchmark::State& state, Job job) {
    for ([[maybe_unused]] auto round : state) {
        state.SetIterationTime(job(static_cast<std::size_t>(state.range(0))));
    }
}

// Reports as "ratio" how many times as long as `base` the other takes. They run by turns,
// so that both meet the machine in the same mood.
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

// At one size.
inline void ratio(benchmark::State& state, Job job, Job base) {
    const auto size = static_cast<std::size_t>(state.range(0));
    compareByTurns(
        state, [&] { return base(size); }, [&] { return job(size); });
}

// One job at two sizes, with a fresh heap: what others left behind would serve the small
// size and not suffice for the large one.
inline void growth(benchmark::State& state, Job job) {
    const auto small = static_cast<std::size_t>(state.range(0));
    const auto large = static_cast<std::size_t>(state.range(1));
    heapIsFresh = true;
    compareByTurns(
        state, [&] { return job(small); }, [&] { return job(large); });
    heapIsFresh = false;
}

inline void growsTenfold(benchmark::internal::Benchmark* benchmark) {
    benchmark->Args({1000, 10000})->Args({10000, 100000})->Args({30000, 300000});
}
