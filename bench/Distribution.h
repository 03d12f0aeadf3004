#pragma once

#include <ctime>
#include <vector>

namespace bench {

/// Processor time that the clock (`CLOCK_PROCESS_CPUTIME_ID`, `CLOCK_THREAD_CPUTIME_ID`) has
/// counted, in milliseconds.
double processorMs(clockid_t clock);

/// Prints a line with the median, the 99th percentile and the largest of the values; nothing if
/// there are none.
void printDistribution(const char* title, std::vector<double> values);

} // namespace bench
