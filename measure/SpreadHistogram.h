#pragma once

#include "measure/HistogramKeys.h"

/// The periods of one message in slots of 10 microseconds. Times are seconds.
class SpreadHistogram
{
public:
    static constexpr std::uint32_t resolution = 10; ///< width of a slot, microseconds
    static constexpr double resolutionSeconds = resolution * 1e-6;
    static constexpr std::uint32_t bucketsPerSecond = 1'000'000 / resolution;

    /// The message came at `time`, its time stamp; `now` is the wall clock.
    void add(double time, double now);
    void clear() { *this = SpreadHistogram(); }

    const HistogramBuckets& buckets() const { return m_buckets; }
    /// Messages so far; one more than periods.
    std::uint32_t count() const { return m_count; }
    /// Of the fullest slot.
    std::uint32_t maxCount() const { return m_maxCount; }
    std::uint32_t minKey() const { return m_minKey; }
    std::uint32_t maxKey() const { return m_maxKey; }
    /// The range of periods: from the second one on with 0.6 of a slot at either end.
    double lowest() const { return m_lowest; }
    double highest() const { return m_highest; }
    double filtered() const { return m_filtered; }
    double sum() const { return m_sum; }
    double last() const { return m_last; }
    double average() const { return m_average; }

private:
    void widen(double period, std::uint32_t key);

    HistogramBuckets m_buckets;
    std::uint32_t m_count = 0;
    std::uint32_t m_maxCount = 0;
    std::uint32_t m_minKey = 0;
    std::uint32_t m_maxKey = 0;
    double m_lowest = 0.0;
    double m_highest = 0.0;
    double m_filtered = 0.0;
    double m_sum = 0.0;
    double m_last = 0.0;
    double m_average = 0.0;
    double m_lastWall = 0.0;
    double m_lastTime = 0.0;
};
