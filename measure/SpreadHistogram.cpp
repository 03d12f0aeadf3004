#include "measure/SpreadHistogram.h"

#include "core/LowPass.h"

#include <algorithm>

namespace {

// In single precision, as it is added to periods.
constexpr auto margin = static_cast<float>(SpreadHistogram::resolutionSeconds * 0.6);

} // namespace

void SpreadHistogram::add(double time, double now)
{
    const double wallStep = now - m_lastWall;
    m_lastWall = now;
    if (m_count == 0) {
        m_lastTime = time;
        m_count = 1;
        return;
    }
    const double period = time - m_lastTime;
    const std::uint32_t key = truncatedToUnsigned((resolutionSeconds * 0.5 + period) *
                                                  static_cast<double>(bucketsPerSecond));
    m_maxCount = std::max(m_maxCount, countInBucket(m_buckets, key));
    widen(period, key);
    zul::lowPass(period, zul::measuredGain, wallStep, m_filtered);
    m_sum += period;
    m_last = period;
    m_average = m_sum / m_count;
    m_lastTime = time;
    ++m_count;
}

void SpreadHistogram::widen(double period, std::uint32_t key)
{
    if (m_count == 1) {
        m_minKey = key;
        m_maxKey = key;
        m_lowest = period;
        m_highest = period;
        return;
    }
    const auto room = static_cast<double>(margin);
    m_lowest = std::min(m_lowest, period - room);
    m_highest = std::max(m_highest, period + room);
    m_minKey = std::min(m_minKey, key);
    m_maxKey = std::max(m_maxKey, key);
}
