#pragma once

#include "measure/BusLoadHistogram.h"
#include "measure/SpreadHistogram.h"
#include "measure/StatisticTable.h"

#include <array>
#include <string>

class Filter;
class MessageContainer;
struct StatisticSettings;

/// What a CAN Statistic window shows. The numbers are stored in project files.
enum class StatisticView : std::int32_t { Average = 0, PeriodTime = 1, Spreading = 2, BusLoad = 3 };

/// A view, its name in the selection, and the head of the last column of its table; null where it
/// has no table.
struct StatisticViewTexts
{
    StatisticView view;
    const char* text;
    const char* valueHeader;
};

inline constexpr std::array<StatisticViewTexts, 4> statisticViews{{
    {StatisticView::Average, "Average [Msg/s]", "Msg/s"},
    {StatisticView::PeriodTime, "Period Time [ms]", "ms"},
    {StatisticView::Spreading, "Spreading (Single Message)", nullptr},
    {StatisticView::BusLoad, "Bus Load Total", nullptr},
}};

/// The view that a number of a project file stands for; any other is the first.
StatisticView statisticView(std::int32_t number);

/// The measurements of a CAN Statistic window. Times are seconds.
class Statistic
{
public:
    enum class Update {
        Ignored, ///< the batch of another interface; the clock went on all the same
        Taken
    };

    /// `now` is the wall clock.
    explicit Statistic(double now);

    /// Only what the view of `settings` shows is measured. `inputInterface` is that of `settings`,
    /// as batches name it; `now` is the wall clock.
    Update receive(const MessageContainer& batch, const StatisticSettings& settings,
                   const std::string& inputInterface, const Filter& filter, double now);
    /// Forgets all measurements; the counter of frames stays.
    void clear();
    /// Forgets what another view makes void: all but the bus load.
    void clearForView();

    /// Goes with the wall clock, and is set by each frame to its time stamp.
    double clock() const { return m_clock; }
    /// Frames so far, whether measured or not.
    std::uint32_t receivedTotal() const { return m_receivedTotal; }
    const StatisticTable& table() const { return m_table; }
    SpreadHistogram& spread() { return m_spread; }
    BusLoadHistogram& busLoad() { return m_busLoad; }

private:
    void add(const zul::MessageCan& frame, const StatisticSettings& settings, double now);

    double m_lastWall;
    double m_clock;
    std::uint32_t m_receivedTotal = 0;
    StatisticTable m_table;
    SpreadHistogram m_spread;
    BusLoadHistogram m_busLoad;
};
