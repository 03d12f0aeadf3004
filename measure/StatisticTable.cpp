#include "measure/StatisticTable.h"

#include <algorithm>
#include <cmath>

void StatisticTable::beginBatch(double clock)
{
    m_batchClock = clock;
    ++m_batch;
}

// Deliberate: a batch sets the reference of every entry to the running clock, and a frame sets that
// of its own entry to its time. Nothing is walked for it: the number of the batch tells.
double StatisticTable::reference(const Ageing& ageing) const
{
    return ageing.batch == m_batch ? ageing.lastSeen : m_batchClock;
}

void StatisticTable::add(const zul::MessageCan& frame)
{
    const std::size_t index = findOrAdd(frame.id());
    StatisticEntry& entry = m_entries[index];
    Ageing& ageing = m_ageing[index];
    const double time = frame.timeStampDouble();
    entry.frame = frame;
    entry.active = true;
    ageing.isActive = true;
    if (entry.count > 0) {
        measurePeriod(entry, time - reference(ageing));
    }
    entry.lastSeen = time;
    ageing.lastSeen = time;
    ageing.batch = m_batch;
    ++entry.count;
    keepTime(index, time);
}

std::size_t StatisticTable::findOrAdd(std::uint32_t id)
{
    const auto [place, isNew] = m_index.try_emplace(id, m_entries.size());
    const std::size_t index = place->second;
    if (isNew) {
        m_entries.emplace_back();
        m_ageing.emplace_back();
    }
    if (!m_ageing[index].isLive) {
        m_ageing[index].isLive = true;
        m_live.push_back(index);
    }
    return index;
}

void StatisticTable::measurePeriod(StatisticEntry& entry, double period)
{
    entry.period = period;
    const bool isFirst = entry.count == 1;
    entry.periodMin = isFirst ? period : std::min(entry.periodMin, period);
    entry.periodMax = isFirst ? period : std::max(entry.periodMax, period);
    m_periodScale = std::max(m_periodScale, period * scaleMargin);
}

void StatisticTable::keepTime(std::size_t index, double time)
{
    Ageing& ageing = m_ageing[index];
    if (m_timeTotal >= maxTimes && ageing.timeCount > 0) {
        dropOldest(index);
    }
    m_entries[index].times.push_front(time);
    if (ageing.timeCount++ == 0) {
        ageing.oldest = time;
    }
    ++m_timeTotal;
}

void StatisticTable::dropOldest(std::size_t index)
{
    std::deque<double>& times = m_entries[index].times;
    times.pop_back();
    --m_ageing[index].timeCount;
    m_ageing[index].oldest = times.empty() ? 0.0 : times.back();
    --m_timeTotal;
}

void StatisticTable::endBatch(double clock)
{
    const auto isDone = [&](std::size_t index) { return !age(index, clock); };
    m_live.erase(std::remove_if(m_live.begin(), m_live.end(), isDone), m_live.end());
}

// Whether there is something left to age.
bool StatisticTable::age(std::size_t index, double clock)
{
    Ageing& ageing = m_ageing[index];
    if (ageing.isActive && clock - ageing.lastSeen > activeSeconds) {
        ageing.isActive = false;
        m_entries[index].active = false;
    }
    const double now = reference(ageing);
    while (ageing.timeCount > 0 && std::abs(now - ageing.oldest) > rateSeconds) {
        dropOldest(index);
    }
    m_rateMax = std::max(m_rateMax, ageing.timeCount);
    ageing.isLive = ageing.isActive || ageing.timeCount > 0;
    return ageing.isLive;
}

void StatisticTable::clear()
{
    m_entries.clear();
    m_ageing.clear();
    m_index.clear();
    m_live.clear();
    m_timeTotal = 0;
    m_rateMax = 0;
    m_periodScale = 0.0;
}
