#pragma once

#include "bench/Measure.h"

#include <benchmark/benchmark.h>

/// Measures the making of the operation's result, not its destruction: records live on in the
/// program.
template <typename Operation>
void measure(benchmark::State &state, Operation operation)
{
    for ([[maybe_unused]] auto iteration : state) {
        const double start = threadSeconds();
        auto result = operation();
        benchmark::DoNotOptimize(result);
        state.SetIterationTime(threadSeconds() - start);
    }
}

/// Runs a benchmark for blogs of 1 to 100,000 posts.
inline void atAllSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->RangeMultiplier(10)->Range(1, 100'000)->UseManualTime();
}
