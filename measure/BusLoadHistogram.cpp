#include "measure/BusLoadHistogram.h"

#include "measure/Milliseconds.h"

#include <algorithm>

void BusLoadHistogram::add(double time)
{
    if (m_count == 0) {
        m_startTime = time;
    }
    const double elapsed = time - m_startTime;
    if (elapsed > m_measureTime * secondsPerMs) {
        return;
    }
    const std::uint32_t key = truncatedToUnsigned(msPerSecond / m_resolution * elapsed);
    m_maxCount = std::max(m_maxCount, countInBucket(m_buckets, key));
    ++m_count;
    m_xMin = 0.0;
    m_xMax = m_measureTime * secondsPerMs;
}

void BusLoadHistogram::clear()
{
    BusLoadHistogram fresh;
    fresh.m_resolution = m_resolution;
    fresh.m_measureTime = m_measureTime;
    *this = fresh;
}

void BusLoadHistogram::setResolution(std::uint32_t resolution)
{
    m_resolution = std::max(resolution, std::uint32_t{1});
    clear();
}

void BusLoadHistogram::setMeasureTime(std::uint32_t measureTime)
{
    m_measureTime = measureTime;
    clear();
}

double BusLoadHistogram::peakRate() const
{
    return m_maxCount / (m_resolution * secondsPerMs);
}
