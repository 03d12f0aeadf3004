#pragma once

#include "measure/HistogramKeys.h"

/// Messages over the time since the first one, in slots, until the measure time is over. Times are
/// seconds.
class BusLoadHistogram
{
public:
    static constexpr std::uint32_t firstResolution = 30;    ///< width of a slot, ms
    static constexpr std::uint32_t firstMeasureTime = 5000; ///< ms

    /// A message of this time stamp; one that lies behind the measure time changes nothing.
    void add(double time);
    /// Starts anew, with the resolution and the measure time as they are.
    void clear();
    /// In ms, 0 counting as 1. Starts anew.
    void setResolution(std::uint32_t resolution);
    /// In ms. Starts anew.
    void setMeasureTime(std::uint32_t measureTime);

    std::uint32_t resolution() const { return m_resolution; }
    std::uint32_t measureTime() const { return m_measureTime; }
    const HistogramBuckets& buckets() const { return m_buckets; }
    std::uint32_t count() const { return m_count; }
    /// Of the fullest slot.
    std::uint32_t maxCount() const { return m_maxCount; }
    double startTime() const { return m_startTime; }
    /// The range of times since the start; 0 to 0 before the first message.
    double xMin() const { return m_xMin; }
    double xMax() const { return m_xMax; }
    /// Messages per second of the fullest slot.
    double peakRate() const;

private:
    std::uint32_t m_resolution = firstResolution;
    std::uint32_t m_measureTime = firstMeasureTime;
    HistogramBuckets m_buckets;
    std::uint32_t m_count = 0;
    std::uint32_t m_maxCount = 0;
    double m_startTime = 0.0;
    double m_xMin = 0.0;
    double m_xMax = 0.0;
};
