#pragma once

#include <cstddef>
#include <cstdint>
#include <map>

/// Counts by the number of a slot.
using HistogramBuckets = std::map<std::uint32_t, std::uint32_t>;

/// How a histogram is drawn. The numbers are those of its selection.
enum class HistogramMode : int { LineGraph = 0, BlockGraph = 1 };

/// The mode that a number stands for; any other is the first.
constexpr HistogramMode histogramMode(int number)
{
    return number == static_cast<int>(HistogramMode::BlockGraph) ? HistogramMode::BlockGraph
                                                                 : HistogramMode::LineGraph;
}

/// A number without its fraction as 32 bits without a sign: negative ones, and what is no number,
/// give 0, and what is too large the largest.
std::uint32_t truncatedToUnsigned(double number);

/// Adds 1 to a slot and returns what it holds then. A histogram has at most `maxBuckets` slots:
/// what would need a further one is counted in its nearest neighbour, since periods that jump about
/// would fill the memory, and could not be told apart on any screen.
std::uint32_t countInBucket(HistogramBuckets& buckets, std::uint32_t key);

inline constexpr std::size_t maxBuckets = 50'000;
