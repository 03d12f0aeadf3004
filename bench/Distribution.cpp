#include "bench/Distribution.h"

#include <algorithm>
#include <cstdio>

namespace bench {

double processorMs(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) * 1e-6;
}

void printDistribution(const char* title, std::vector<double> values)
{
    if (values.empty()) {
        return;
    }
    std::sort(values.begin(), values.end());
    const auto percentile = [&values](double share) {
        const auto last = static_cast<double>(values.size() - 1);
        return values[static_cast<std::size_t>(share * last + 0.5)];
    };
    std::printf("%-40s %9.2f %9.2f %9.2f\n", title, percentile(0.5), percentile(0.99),
                values.back());
}

} // namespace bench
