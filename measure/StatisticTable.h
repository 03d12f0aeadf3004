#pragma once

#include "message/MessageCan.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <unordered_map>
#include <vector>

/// What is counted of one identifier. Times are seconds.
struct StatisticEntry
{
    zul::MessageCan frame;   ///< the last one
    bool active = false;     ///< a frame came within the last half second
    std::uint32_t count = 0; ///< frames seen
    double lastSeen = 0.0;   ///< time stamp of the last frame
    double period = 0.0;     ///< the last one
    double periodMin = 0.0;
    double periodMax = 0.0;
    std::deque<double> times; ///< time stamps of the last second, newest first
};

/// Rates and periods of all identifiers, each with a row from its first frame on.
///
/// A batch is `beginBatch`, `add` for each frame, and `endBatch`. The clock that they tell runs
/// with the time stamps of frames, and with the wall clock between them.
class StatisticTable
{
public:
    static constexpr double activeSeconds = 0.5;
    static constexpr double rateSeconds = 0.999999;
    static constexpr double scaleMargin = 1.2; ///< the longest period and some room
    /// Time stamps kept of all entries together. Beyond them an entry gives up its oldest for each
    /// new one: a device whose clock stands still would fill the memory.
    static constexpr std::size_t maxTimes = 1U << 20U;

    /// `clock` is the running clock before the batch's first frame.
    void beginBatch(double clock);
    /// Deliberate: the first frame of an identifier in a batch has its period measured from the
    /// running clock, and only the ones behind it from the frame before.
    void add(const zul::MessageCan& frame);
    /// Lets entries age. `clock` is the running clock behind the batch's last frame.
    void endBatch(double clock);
    void clear();

    int rowCount() const { return static_cast<int>(m_entries.size()); }
    const StatisticEntry& entry(int row) const { return m_entries[static_cast<std::size_t>(row)]; }
    /// Messages per second.
    int rate(int row) const { return static_cast<int>(entry(row).times.size()); }
    /// The highest rate of any entry so far; 1 at the start and 0 after `clear`.
    std::uint32_t rateMax() const { return m_rateMax; }
    /// What periods are drawn to, in seconds.
    double periodScale() const { return m_periodScale; }

private:
    /// What is looked at in every batch, apart from what is not: thousands of them fit into a
    /// cache.
    struct Ageing
    {
        double lastSeen = 0.0;
        double oldest = 0.0;         // of the entry's times
        std::uint32_t timeCount = 0; // of the entry's times
        std::uint32_t batch = 0;     // of the last frame
        bool isActive = false;
        bool isLive = false; // it may still age
    };

    std::size_t findOrAdd(std::uint32_t id);
    /// The time from which the next period is measured, and to which the last second is counted.
    double reference(const Ageing& ageing) const;
    void measurePeriod(StatisticEntry& entry, double period);
    void keepTime(std::size_t index, double time);
    void dropOldest(std::size_t index);
    bool age(std::size_t index, double clock);

    std::vector<StatisticEntry> m_entries;
    std::vector<Ageing> m_ageing;                           // by entry
    std::unordered_map<std::uint32_t, std::size_t> m_index; // by identifier
    std::vector<std::size_t> m_live;                        // entries that may still age
    std::size_t m_timeTotal = 0;                            // of all entries
    double m_batchClock = 0.0;
    std::uint32_t m_batch = 0;
    std::uint32_t m_rateMax = 1;
    double m_periodScale = 0.0;
};
