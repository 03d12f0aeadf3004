#include "bench/RatioReporter.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace bench {

namespace {

constexpr double nanosecondsPerSecond = 1e9;
constexpr double nanosecondsPerMillisecond = 1e6;
constexpr const char* itemsCounter = "items";

double minimum(const std::vector<double>& values)
{
    return *std::min_element(values.begin(), values.end());
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

// Or what the benchmark itself gives as such.
bool countsWallTime(const std::string& name)
{
    return name.find("real_time") != std::string::npos ||
           name.find("manual_time") != std::string::npos;
}

} // namespace

void setItems(benchmark::State& state, std::int64_t itemsPerIteration)
{
    state.SetItemsProcessed(itemsPerIteration * static_cast<std::int64_t>(state.iterations()));
    state.counters[itemsCounter] = static_cast<double>(itemsPerIteration);
}

RatioReporter::RatioReporter(std::vector<Comparison> comparisons)
    : m_comparisons(std::move(comparisons))
{
}

bool RatioReporter::ReportContext(const Context& context)
{
    std::printf("%d processors, load before the run", context.cpu_info.num_cpus);
    for (const double load : context.cpu_info.load_avg) {
        std::printf(" %.2f", load);
    }
    std::printf("\n");
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        const std::string name = run.run_name.str();
        if (run.error_occurred) {
            std::printf("%s: %s\n", name.c_str(), run.error_message.c_str());
            continue;
        }
        if (run.run_type != Run::RT_Iteration) {
            continue;
        }
        Samples& samples = m_samples[name];
        if (samples.nanoseconds.empty()) {
            m_order.push_back(name);
        }
        const auto items = run.counters.find(itemsCounter);
        samples.items = items != run.counters.end() ? static_cast<double>(items->second) : 1.0;
        const double seconds =
            countsWallTime(name) ? run.real_accumulated_time : run.cpu_accumulated_time;
        samples.nanoseconds.push_back(seconds * nanosecondsPerSecond /
                                      static_cast<double>(run.iterations) / samples.items);
    }
}

void RatioReporter::Finalize()
{
    printBenchmarks();
    printRatios();
    std::fflush(stdout);
}

void RatioReporter::printBenchmarks()
{
    std::printf("\n%-52s %8s %11s %11s %13s %12s %4s\n", "Benchmark", "items", "ns an item",
                "at least", "items/s", "ms a turn", "runs");
    for (const std::string& name : m_order) {
        const Samples& samples = m_samples.at(name);
        const double middle = median(samples.nanoseconds);
        std::printf("%-52s %8.0f %11.2f %11.2f %13.0f %12.4f %4zu\n", name.c_str(), samples.items,
                    middle, minimum(samples.nanoseconds), nanosecondsPerSecond / middle,
                    middle * samples.items / nanosecondsPerMillisecond, samples.nanoseconds.size());
    }
}

void RatioReporter::printRatios()
{
    std::printf("\n%-52s %-40s %8s %8s %8s\n", "Compared", "with", "medians", "minima", "target");
    for (const Comparison& comparison : m_comparisons) {
        const Samples* measured = find(comparison.name);
        const Samples* baseline = find(comparison.baseline);
        if (measured == nullptr || baseline == nullptr) {
            continue; // left out by a filter on the command line
        }
        std::printf("%-52s %-40s %8.2f %8.2f", comparison.name.c_str(), comparison.baseline.c_str(),
                    median(measured->nanoseconds) / median(baseline->nanoseconds),
                    minimum(measured->nanoseconds) / minimum(baseline->nanoseconds));
        if (comparison.target > 0.0) {
            std::printf(" %8.2f", comparison.target);
        }
        std::printf("\n");
    }
}

const RatioReporter::Samples* RatioReporter::find(const std::string& name) const
{
    const auto found = m_samples.find(name);
    return found != m_samples.end() ? &found->second : nullptr;
}

} // namespace bench
