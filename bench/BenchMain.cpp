#include "bench/BenchMain.h"

#include <string>
#include <utility>

namespace bench {

int runBenchmarks(int argumentCount, char** arguments, std::vector<Comparison> comparisons)
{
    // In front, so that the command line's own options win.
    std::vector<std::string> words{arguments[0], "--benchmark_repetitions=9",
                                   "--benchmark_min_time=0.1",
                                   "--benchmark_enable_random_interleaving=true"};
    words.insert(words.end(), arguments + 1, arguments + argumentCount);
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    int count = static_cast<int>(words.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return 1;
    }
    RatioReporter reporter(std::move(comparisons));
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

} // namespace bench
