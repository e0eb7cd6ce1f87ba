// Benchmarks of growing sizes, which are compared by their fastest repetitions: whatever
// else a machine does slows the long ones more than the short ones.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <vector>

template <int... kSizes>
void grows(benchmark::internal::Benchmark* benchmark) {
    for (const int size : {kSizes...}) {
        benchmark->Arg(size);
    }
    benchmark->ComputeStatistics("fastest", [](const std::vector<double>& times) {
        return *std::min_element(times.begin(), times.end());
    });
}
