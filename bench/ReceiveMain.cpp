#include "bench/WindowMain.h"

#include <string>

namespace {

std::vector<bench::Comparison> comparisons()
{
    constexpr double flat = 3.0;
    std::vector<bench::Comparison> pairs;
    for (const char* batch : {"400", "8500"}) {
        const std::string end = std::string("/batch:") + batch;
        for (const char* ids : {"10", "1000", "20000"}) {
            const std::string range = std::string("/ids:") + ids + end;
            pairs.push_back({"tableUpdate" + range, "mapAssignment" + range, 0.0});
        }
        for (const char* ids : {"1000", "20000"}) {
            pairs.push_back(
                {std::string("tableUpdate/ids:") + ids + end, "tableUpdate/ids:10" + end, flat});
        }
        pairs.push_back({"mapAssignment/ids:20000" + end, "mapAssignment/ids:10" + end, 0.0});
    }
    pairs.push_back(
        {"windowKnownRows/ids:20000/batch:400", "windowKnownRows/ids:10/batch:400", flat});
    pairs.push_back(
        {"windowNewRows/ids:20000/manual_time", "windowNewRows/ids:1000/manual_time", flat});
    pairs.push_back({"repaintRows/cells/manual_time", "plainRows/cells/manual_time", 0.0});
    pairs.push_back({"repaintRows/screen/manual_time", "plainRows/screen/manual_time", 0.0});
    return pairs;
}

} // namespace

int main(int argc, char** argv)
{
    return bench::runWindowBenchmarks(argc, argv, comparisons());
}
