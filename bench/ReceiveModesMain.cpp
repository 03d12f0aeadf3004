#include "bench/WindowMain.h"

#include <string>

namespace {

std::vector<bench::Comparison> comparisons()
{
    std::vector<bench::Comparison> pairs{
        {"identifierRows", "mapAssignment", 0.0},
        {"parameterRows/parameters:0", "mapAssignment", 0.0},
        {"parameterRows/parameters:1", "mapAssignment", 0.0},
        {"parameterRows/parameters:10", "parameterRows/parameters:1", 0.0},
        {"parameterRows/parameters:10", "rowWalk/parameters:10", 0.0},
        {"activeIdentifiers", "setLookup", 0.0},
    };
    for (const char* mode : {"can", "canAerospace", "raw", "profile"}) {
        const std::string rows = std::string("/") + mode + "/manual_time";
        pairs.push_back({"repaintRows" + rows, "plainRows" + rows, 0.0});
    }
    pairs.push_back(
        {"repaintManyRows/profile/manual_time", "repaintRows/profile/manual_time", 3.0});
    return pairs;
}

} // namespace

int main(int argc, char** argv)
{
    return bench::runWindowBenchmarks(argc, argv, comparisons());
}
