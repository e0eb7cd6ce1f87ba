// Jobs of a size, timed and compared.
#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstddef>
#include <functional>
#include <vector>

// The seconds that one round takes; what comes before and after it is not counted.
using Job = double (*)(std::size_t size);

// Memory that is freed stays with the process. Otherwise the time depends on how long the
// system takes to clear pages, more than on the job.
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

// Reports as "ratio" how many times as long as `base` the other takes. They run by turns,
// so that another load of the machine slows both down alike.
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

// One job at two sizes. Both find the memory that the large one needs.
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
