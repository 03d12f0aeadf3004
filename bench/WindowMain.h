#pragma once

#include "bench/BenchMain.h"

#include <ctime>

namespace bench {

/// `runBenchmarks` for windows: on the offscreen platform unless the caller chose another.
int runWindowBenchmarks(int argumentCount, char** arguments, std::vector<Comparison> comparisons);

/// Processor time of this thread.
inline double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// Counts the main thread's processor time for `work` alone; for benchmarks with manual time.
template <typename Work>
void timed(benchmark::State& state, Work work)
{
    const double begin = processorSeconds();
    work();
    state.SetIterationTime(processorSeconds() - begin);
}

} // namespace bench
