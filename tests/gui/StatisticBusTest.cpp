#include "gui/controls/QwtBarItem.h"
#include "gui/measure/DialogStatistic.h"
#include "gui/measure/QwtPeriodItem.h"
#include "measure/SpreadPlot.h"
#include "message/MessageContainer.h"
#include "project/ObjectStatistic.h"
#include "project/Project.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"
#include "tests/unit/virtual/BusFixture.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>
#include <map>

// Known traffic over a virtual bus into the window, on clocks that the test moves: what is shown is
// held against what was sent.

namespace {

using canvirtual::BusTime;
using canvirtual::millisecond;

constexpr BusTime pollPeriod = 50 * millisecond;
constexpr BusTime microsecond = millisecond / 1000;
constexpr double tolerance = 2e-6; // seconds; times of today as floating point are 0.24 us apart

/// Sent every 10 ms, up to 0.4 ms late or early: its periods are 10, 10.4, 9.7 and 9.9 ms.
constexpr std::uint32_t jittering = 0x100;
constexpr BusTime jitters[] = {0, 0, 400 * microsecond, 100 * microsecond};
/// Sent every 40 ms.
constexpr std::uint32_t slow = 0x200;
/// Three frames in 2 ms, each 260 ms; the first of all.
constexpr std::uint32_t bursting = 0x300;

struct Sending
{
    BusTime time; ///< since the start
    std::uint32_t id;
};

/// All that is sent in so many milliseconds, by time. No two frames meet on the bus.
std::vector<Sending> trafficOf(int milliseconds)
{
    std::vector<Sending> traffic;
    for (int i = 0; i * 10 < milliseconds; ++i) {
        traffic.push_back({(i * 10 + 5) * millisecond + jitters[i % 4], jittering});
    }
    for (int i = 0; i * 40 < milliseconds; ++i) {
        traffic.push_back({(i * 40 + 8) * millisecond, slow});
    }
    for (int i = 0; i * 260 < milliseconds; ++i) {
        for (int frame = 0; frame < 3; ++frame) {
            traffic.push_back({(i * 260 + 1 + frame) * millisecond, bursting});
        }
    }
    std::sort(traffic.begin(), traffic.end(),
              [](const Sending& left, const Sending& right) { return left.time < right.time; });
    return traffic;
}

class StatisticBus : public BusFixture
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_sender = openDevice();
        m_receiver = openDevice();
        m_object = dynamic_cast<ObjectStatistic*>(m_project.createObject(ObjectType::Statistic));
    }
    void open(StatisticView view)
    {
        m_object->settings().displayType = static_cast<int>(view);
        m_dialog = std::make_unique<gui::DialogStatistic>(m_object, nullptr);
        m_dialog->show();
    }
    /// Sends all of it, and polls every 50 ms as the program does, to the end of the last period.
    void play(const std::vector<Sending>& traffic, int milliseconds)
    {
        std::size_t next = 0;
        for (BusTime poll = pollPeriod; poll <= milliseconds * millisecond; poll += pollPeriod) {
            while (next < traffic.size() && traffic[next].time < poll) {
                moveTo(traffic[next].time);
                ASSERT_TRUE(send(*m_sender, traffic[next].id, 8));
                ++next;
            }
            moveTo(poll);
            deliver();
        }
    }
    void silence(int milliseconds)
    {
        for (BusTime passed = 0; passed < milliseconds * millisecond; passed += pollPeriod) {
            moveTo(m_time + pollPeriod);
            deliver();
        }
    }
    int rowOf(std::uint32_t id) const
    {
        const StatisticTable& table = m_dialog->statistic().table();
        for (int row = 0; row < table.rowCount(); ++row) {
            if (table.entry(row).frame.id() == id) {
                return row;
            }
        }
        return -1;
    }
    template <typename Cell>
    Cell* cell(std::uint32_t id) const
    {
        auto* tree = m_dialog->findChild<QTreeWidget*>();
        return qobject_cast<Cell*>(tree->itemWidget(tree->topLevelItem(rowOf(id)), 2));
    }
    static std::vector<double> secondsOf(const std::vector<Sending>& traffic, std::uint32_t id)
    {
        std::vector<double> times;
        for (const Sending& sending : traffic) {
            if (sending.id == id) {
                times.push_back(static_cast<double>(sending.time) * 1e-9);
            }
        }
        return times;
    }

private:
    void moveTo(BusTime time)
    {
        m_clock->advance(time - m_time);
        m_wall.advance(static_cast<double>(time - m_time) * 1e-9);
        m_time = time;
    }
    void deliver()
    {
        MessageContainer batch;
        batch.setSrcDest("Bus");
        while (Message* message = m_receiver->recvMessage()) {
            batch.addMessage(SmartPtr<Message>(message));
        }
        m_dialog->receive(batch);
    }

    zul::test::TestHome m_home;
    zul::test::SettableClock m_wall{static_cast<double>(SettableClock::start) * 1e-9};
    Project m_project{{ObjectStatistic::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    std::unique_ptr<canvirtual::VirtualDevice> m_sender;
    std::unique_ptr<canvirtual::VirtualDevice> m_receiver;
    BusTime m_time = 0;

protected:
    ObjectStatistic* m_object = nullptr;
    std::unique_ptr<gui::DialogStatistic> m_dialog; // goes before the project
};

TEST_F(StatisticBus, RateIsWhatWasSentInASecond)
{
    open(StatisticView::Average);
    const auto traffic = trafficOf(4'000);
    play(traffic, 4'000);
    const StatisticTable& table = m_dialog->statistic().table();
    ASSERT_EQ(table.rowCount(), 3);
    EXPECT_EQ(m_dialog->statistic().receivedTotal(), traffic.size());
    EXPECT_EQ(table.rate(rowOf(jittering)), 100);
    EXPECT_EQ(table.rate(rowOf(slow)), 25);
    EXPECT_EQ(table.rate(rowOf(bursting)), 12);
    EXPECT_EQ(table.rateMax(), 100U);
    EXPECT_EQ(table.entry(rowOf(jittering)).count, 400U);
    EXPECT_EQ(table.entry(rowOf(slow)).count, 100U);
    EXPECT_EQ(table.entry(rowOf(bursting)).count, 48U);
    EXPECT_NEAR(cell<gui::QwtBarItem>(jittering)->rate(), 100.0, 0.5);
    EXPECT_NEAR(cell<gui::QwtBarItem>(slow)->rate(), 25.0, 0.6);
    silence(500);
    EXPECT_FALSE(table.entry(rowOf(bursting)).active);
    silence(600);
    EXPECT_EQ(table.rate(rowOf(jittering)), 0);
    EXPECT_FALSE(table.entry(rowOf(jittering)).active);
}

/// The periods by the sent times: a batch's first frame of an identifier counts from the running
/// clock, which is the last frame before it on the bus and the time that the computer counted since
/// the poll that brought it.
std::map<std::uint32_t, std::vector<double>> periodsOf(const std::vector<Sending>& traffic)
{
    std::map<std::uint32_t, std::vector<double>> periods;
    std::map<std::uint32_t, double> last;
    std::map<std::uint32_t, BusTime> pollOfLast;
    double clock = 0.0;
    double runningClock = 0.0;
    BusTime poll = 0;
    for (const Sending& sending : traffic) {
        const BusTime pollOfThis = (sending.time / pollPeriod + 1) * pollPeriod;
        const double time = static_cast<double>(sending.time) * 1e-9;
        if (pollOfThis != poll) {
            runningClock = clock + static_cast<double>(pollOfThis - poll) * 1e-9;
            poll = pollOfThis;
        }
        if (last.count(sending.id) != 0) {
            const bool isFirst = pollOfLast[sending.id] != pollOfThis;
            periods[sending.id].push_back(time - (isFirst ? runningClock : last[sending.id]));
        }
        last[sending.id] = time;
        pollOfLast[sending.id] = pollOfThis;
        clock = time;
    }
    return periods;
}

TEST_F(StatisticBus, PeriodAndItsExtremesAreThoseOfTheSentFrames)
{
    open(StatisticView::PeriodTime);
    const auto traffic = trafficOf(2'000);
    play(traffic, 2'000);
    const StatisticTable& table = m_dialog->statistic().table();
    double longest = 0.0;
    for (const auto& [id, periods] : periodsOf(traffic)) {
        const StatisticEntry& entry = table.entry(rowOf(id));
        const auto [least, most] = std::minmax_element(periods.begin(), periods.end());
        EXPECT_NEAR(entry.period, periods.back(), tolerance) << id;
        EXPECT_NEAR(entry.periodMin, *least, tolerance) << id;
        EXPECT_NEAR(entry.periodMax, *most, tolerance) << id;
        const auto* shown = cell<gui::QwtPeriodItem>(id);
        ASSERT_NE(shown, nullptr);
        EXPECT_NEAR(shown->period(), periods.back(), tolerance) << id;
        EXPECT_NEAR(shown->minimum(), *least, tolerance) << id;
        EXPECT_NEAR(shown->maximum(), *most, tolerance) << id;
        longest = std::max(longest, *most);
    }
    EXPECT_NEAR(table.periodScale(), longest * 1.2, tolerance);
    EXPECT_NEAR(table.entry(rowOf(jittering)).periodMax, 0.0104, tolerance)
        << "the longest period within a batch";
}

TEST_F(StatisticBus, SpreadingIsTheHistogramOfTheKnownJitter)
{
    m_object->settings().selectedId = jittering;
    open(StatisticView::Spreading);
    const auto traffic = trafficOf(4'010);
    play(traffic, 4'050);
    const auto times = secondsOf(traffic, jittering);
    ASSERT_EQ(times.size(), 401U);
    auto& spread = const_cast<Statistic&>(m_dialog->statistic()).spread();
    EXPECT_EQ(spread.count(), 401U);
    EXPECT_EQ(spread.buckets(),
              (HistogramBuckets{{970, 100}, {990, 100}, {1000, 100}, {1040, 100}}));
    EXPECT_EQ(spread.maxCount(), 100U);
    EXPECT_EQ(spread.minKey(), 970U);
    EXPECT_EQ(spread.maxKey(), 1040U);
    EXPECT_NEAR(spread.lowest(), 0.0097 - 6e-6, tolerance);
    EXPECT_NEAR(spread.highest(), 0.0104 + 6e-6, tolerance);
    EXPECT_NEAR(spread.average(), (times.back() - times.front()) / 400.0, tolerance);
    EXPECT_NEAR(spread.sum(), times.back() - times.front(), tolerance);
    EXPECT_NEAR(spread.last(), times[400] - times[399], tolerance);
    EXPECT_EQ(m_dialog->statistic().receivedTotal(), traffic.size())
        << "the others count in the header";
}

TEST_F(StatisticBus, SummaryOfTheSpreadingTellsTheKnownJitter)
{
    m_object->settings().selectedId = jittering;
    open(StatisticView::Spreading);
    play(trafficOf(4'010), 4'050);
    QStringList texts;
    for (const PlotItem& item : spreadPlot(const_cast<Statistic&>(m_dialog->statistic()).spread(),
                                           HistogramMode::LineGraph, {630, 400})) {
        if (const auto* text = std::get_if<PlotText>(&item)) {
            texts.append(text->text);
        }
    }
    for (const char* wanted : {": 10.000 ms", ": 9.694 ms", ": 10.406 ms",
                               ": 0.712 ms (-0.306 / +0.406)", ": 401", "100", "24.94 %"}) {
        EXPECT_TRUE(texts.contains(QLatin1String(wanted))) << wanted;
    }
}

TEST_F(StatisticBus, BusLoadIsWhatWasSentInEachSlotOfTheMeasureTime)
{
    open(StatisticView::BusLoad);
    auto& load = const_cast<Statistic&>(m_dialog->statistic()).busLoad();
    m_dialog->findChild<QSpinBox*>(QStringLiteral("resolution"))->setValue(100);
    m_dialog->findChild<QSpinBox*>(QStringLiteral("measureTime"))->setValue(1'000);
    const auto traffic = trafficOf(2'000);
    play(traffic, 2'000);
    HistogramBuckets sent;
    std::uint32_t total = 0;
    for (const Sending& sending : traffic) {
        const BusTime since = sending.time - traffic.front().time;
        if (since <= 1'000 * millisecond) {
            ++sent[static_cast<std::uint32_t>(since / (100 * millisecond))];
            ++total;
        }
    }
    EXPECT_EQ(load.buckets(), sent);
    EXPECT_EQ(load.count(), total);
    EXPECT_EQ(load.maxCount(), 16U) << "10, 3 of each 40 ms, and a burst";
    EXPECT_NEAR(load.peakRate(), 160.0, 1e-9);
    EXPECT_GT(traffic.size(), total) << "the measurement was over before";
    EXPECT_EQ(m_dialog->statistic().receivedTotal(), traffic.size());
}

} // namespace
