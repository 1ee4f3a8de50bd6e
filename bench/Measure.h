#pragma once

#include <benchmark/benchmark.h>

#include <ctime>

/// The processor time that the calling thread has had, in seconds.
inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

/// Measures the making of the operation's result, not its destruction: records live on in the
/// program. Processor time, so that what else the machine does counts little.
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
