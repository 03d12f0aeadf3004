#include "measure/StatisticTable.h"

#include <algorithm>
#include <cmath>

void StatisticTable::beginBatch(double clock)
{
    // This stands for setting the reference of every entry: `add` and `age` take the clock where
    // the batch has not brought a frame.
    m_batchClock = clock;
    ++m_batch;
}

void StatisticTable::add(const zul::MessageCan& frame)
{
    Counted& counted = findOrAdd(frame.id());
    StatisticEntry& entry = counted.entry;
    const double time = frame.timeStampDouble();
    entry.frame = frame;
    entry.active = true;
    if (entry.count > 0) {
        measurePeriod(entry, time - (counted.batch == m_batch ? counted.reference : m_batchClock));
    }
    counted.reference = time;
    counted.batch = m_batch;
    entry.lastSeen = time;
    ++entry.count;
    keepTime(entry, time);
}

StatisticTable::Counted& StatisticTable::findOrAdd(std::uint32_t id)
{
    const auto [place, isNew] = m_index.try_emplace(id, m_entries.size());
    if (isNew) {
        m_entries.emplace_back();
    }
    Counted& counted = m_entries[place->second];
    if (!counted.isLive) {
        counted.isLive = true;
        m_live.push_back(place->second);
    }
    return counted;
}

void StatisticTable::measurePeriod(StatisticEntry& entry, double period)
{
    entry.period = period;
    const bool isFirst = entry.count == 1;
    entry.periodMin = isFirst ? period : std::min(entry.periodMin, period);
    entry.periodMax = isFirst ? period : std::max(entry.periodMax, period);
    m_periodScale = std::max(m_periodScale, period * scaleMargin);
}

void StatisticTable::keepTime(StatisticEntry& entry, double time)
{
    if (m_timeTotal >= maxTimes && !entry.times.empty()) {
        dropOldest(entry);
    }
    entry.times.push_front(time);
    ++m_timeTotal;
}

void StatisticTable::dropOldest(StatisticEntry& entry)
{
    entry.times.pop_back();
    --m_timeTotal;
}

void StatisticTable::endBatch(double clock)
{
    const auto isDone = [&](std::size_t index) { return !age(m_entries[index], clock); };
    m_live.erase(std::remove_if(m_live.begin(), m_live.end(), isDone), m_live.end());
}

// Whether there is something left to age.
bool StatisticTable::age(Counted& counted, double clock)
{
    StatisticEntry& entry = counted.entry;
    if (entry.active && clock - entry.lastSeen > activeSeconds) {
        entry.active = false;
    }
    const double reference = counted.batch == m_batch ? counted.reference : m_batchClock;
    while (!entry.times.empty() && std::abs(reference - entry.times.back()) > rateSeconds) {
        dropOldest(entry);
    }
    m_rateMax = std::max(m_rateMax, static_cast<std::uint32_t>(entry.times.size()));
    counted.isLive = entry.active || !entry.times.empty();
    return counted.isLive;
}

void StatisticTable::clear()
{
    m_entries.clear();
    m_index.clear();
    m_live.clear();
    m_timeTotal = 0;
    m_rateMax = 0;
    m_periodScale = 0.0;
}
