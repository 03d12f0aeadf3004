#pragma once

#include "bench/RatioReporter.h"

#include <vector>

namespace bench {

/// Runs all benchmarks of the program as the command line says, with nine repetitions in mixed
/// order if it says nothing else. Returns the program's exit code.
int runBenchmarks(int argumentCount, char** arguments, std::vector<Comparison> comparisons);

} // namespace bench
