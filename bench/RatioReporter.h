#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// Two benchmarks of one program: what is measured, and what it is measured against.
struct Comparison
{
    std::string name;
    std::string baseline;
    /// The ratio that is not to be exceeded; 0 for none.
    double target;
};

/// Says how many items (frames, rows) one turn of the benchmark's loop worked on; call it once,
/// behind the loop.
void setItems(benchmark::State& state, std::int64_t itemsPerIteration);

/// Prints one line for each benchmark, over all its repetitions, and the ratios of pairs. A
/// benchmark counts the main thread's processor time, so that other work on the machine disturbs it
/// little; one with "real_time" in its name counts the wall's.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    explicit RatioReporter(std::vector<Comparison> comparisons);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    struct Samples
    {
        double items = 1.0;                // of one iteration
        std::vector<double> nanoseconds{}; // of one item, one entry for each repetition
    };

    void printBenchmarks();
    void printRatios();
    const Samples* find(const std::string& name) const;

    std::vector<Comparison> m_comparisons;
    std::vector<std::string> m_order; // names as they came
    std::map<std::string, Samples> m_samples;
};

} // namespace bench
