#include "measure/Statistic.h"

#include "measure/StatisticRowText.h"
#include "message/MessageContainer.h"
#include "project/Filter.h"
#include "project/ObjectStatistic.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using zul::MessageCan;

MessageContainer batchOf(const std::vector<std::pair<std::uint32_t, double>>& frames,
                         const char* source = "Nose")
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (const auto& [id, time] : frames) {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setTimeStamp(time);
        batch.addMessage(SmartPtr<Message>(frame));
    }
    return batch;
}

class StatisticTest : public testing::Test
{
protected:
    /// A batch after so many seconds.
    Statistic::Update feed(double seconds, const MessageContainer& batch)
    {
        m_now += seconds;
        return m_statistic.receive(batch, m_settings, m_interface, m_filter, m_now);
    }
    const StatisticTable& table() const { return m_statistic.table(); }
    void show(StatisticView view) { m_settings.displayType = static_cast<int>(view); }

    double m_now = 100.0;
    Statistic m_statistic{100.0};
    StatisticSettings m_settings;
    Filter m_filter;
    std::string m_interface = allInterfaces;
};

TEST_F(StatisticTest, ViewsHaveTheirTexts)
{
    QStringList texts;
    for (const StatisticViewTexts& view : statisticViews) {
        texts.append(QLatin1String(view.text));
        EXPECT_EQ(statisticView(static_cast<int>(view.view)), view.view);
    }
    EXPECT_EQ(texts.join(QLatin1Char('|')),
              QStringLiteral("Average [Msg/s]|Period Time [ms]|Spreading (Single Message)|Bus Load "
                             "Total"));
    EXPECT_EQ(statisticView(-1), StatisticView::Average);
    EXPECT_EQ(statisticView(4), StatisticView::Average);
}

TEST_F(StatisticTest, EachIdentifierHasARowInTheOrderOfFirstFrames)
{
    feed(0.05, batchOf({{9, 50.0}, {7, 50.01}, {9, 50.02}}));
    ASSERT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().entry(0).frame.id(), 9U);
    EXPECT_EQ(table().entry(0).count, 2U);
    EXPECT_EQ(table().entry(1).frame.id(), 7U);
    EXPECT_TRUE(table().entry(1).active);
    EXPECT_DOUBLE_EQ(table().entry(0).lastSeen, 50.02);
    EXPECT_EQ(m_statistic.receivedTotal(), 3U);
}

TEST_F(StatisticTest, FirstFrameOfABatchIsMeasuredFromTheRunningClock)
{
    feed(0.05, batchOf({{7, 50.0}, {9, 50.04}}));
    EXPECT_DOUBLE_EQ(m_statistic.clock(), 50.04);
    EXPECT_DOUBLE_EQ(table().entry(0).period, 0.0) << "one frame has no period";
    feed(0.05, batchOf({{7, 50.1}, {7, 50.125}}));
    EXPECT_NEAR(table().entry(0).periodMin, 50.1 - 50.09, 1e-9) << "the clock had reached 50.09";
    EXPECT_NEAR(table().entry(0).period, 0.025, 1e-9) << "from the frame before";
    EXPECT_NEAR(table().entry(0).periodMax, 0.025, 1e-9);
    EXPECT_NEAR(table().periodScale(), 0.025 * 1.2, 1e-9);
    EXPECT_EQ(table().entry(1).count, 1U);
}

TEST_F(StatisticTest, ScaleKeepsTheLongestPeriod)
{
    feed(0.05, batchOf({{7, 50.0}, {7, 50.5}, {7, 50.6}}));
    EXPECT_NEAR(table().periodScale(), 0.6, 1e-9);
    EXPECT_NEAR(table().entry(0).periodMin, 0.1, 1e-9);
    EXPECT_NEAR(table().entry(0).periodMax, 0.5, 1e-9);
}

TEST_F(StatisticTest, PeriodsMayBeNegativeWhenTheClockJumpsBack)
{
    feed(0.05, batchOf({{7, 50.0}, {7, 20.0}}));
    EXPECT_DOUBLE_EQ(table().entry(0).period, -30.0);
    EXPECT_DOUBLE_EQ(table().periodScale(), 0.0);
}

TEST_F(StatisticTest, RateIsTheNumberOfFramesInTheLastSecond)
{
    for (int i = 0; i < 40; ++i) {
        feed(0.05, batchOf({{7, 50.0 + i * 0.05}, {7, 50.025 + i * 0.05}}));
    }
    EXPECT_EQ(table().rate(0), 40);
    EXPECT_EQ(table().rateMax(), 40U);
    EXPECT_EQ(table().entry(0).count, 80U);
    EXPECT_GT(table().entry(0).times.front(), table().entry(0).times.back()) << "newest first";
}

TEST_F(StatisticTest, TimeIsDroppedBeyond999999Microseconds)
{
    feed(0.0, batchOf({{7, 50.0}}));
    feed(0.0, batchOf({{7, 50.999998}}));
    EXPECT_EQ(table().rate(0), 2);
    feed(0.0, batchOf({{7, 51.0}}));
    EXPECT_EQ(table().rate(0), 2) << "the first one went";
    feed(0.0, batchOf({{7, 10.0}}));
    EXPECT_EQ(table().rate(0), 1) << "a clock that jumps back drops them too";
}

TEST_F(StatisticTest, RateFallsToZeroWithinASecondOfEmptyBatches)
{
    feed(0.05, batchOf({{7, 50.0}}));
    feed(0.99, batchOf({}));
    EXPECT_EQ(table().rate(0), 1);
    feed(0.02, batchOf({}));
    EXPECT_EQ(table().rate(0), 0);
    EXPECT_EQ(table().rowCount(), 1) << "rows stay";
    feed(1.0, batchOf({{7, 52.0}}));
    EXPECT_EQ(table().rate(0), 1);
    EXPECT_TRUE(table().entry(0).active);
}

TEST_F(StatisticTest, IdentifierThatStopsTurnsSilentAfterHalfASecond)
{
    feed(0.05, batchOf({{7, 50.0}}));
    feed(0.5, batchOf({}));
    EXPECT_TRUE(table().entry(0).active) << "0.5 s are not exceeded";
    feed(0.01, batchOf({}));
    EXPECT_FALSE(table().entry(0).active);
}

TEST_F(StatisticTest, OtherFramesMoveTheClockOn)
{
    feed(0.05, batchOf({{7, 50.0}, {9, 50.6}}));
    EXPECT_FALSE(table().entry(0).active);
    EXPECT_TRUE(table().entry(1).active);
}

TEST_F(StatisticTest, BatchFromAnotherInterfaceAdvancesTheClockAlone)
{
    m_interface = "Nose";
    feed(0.05, batchOf({{7, 50.0}}));
    EXPECT_EQ(feed(0.4, batchOf({{8, 90.0}}, "Tail")), Statistic::Update::Ignored);
    EXPECT_DOUBLE_EQ(m_statistic.clock(), 50.4);
    EXPECT_EQ(m_statistic.receivedTotal(), 1U);
    feed(0.2, batchOf({}));
    EXPECT_FALSE(table().entry(0).active);
    EXPECT_EQ(table().rowCount(), 1);
}

TEST_F(StatisticTest, InputOffAndFilterOnlyCountAndSetTheClock)
{
    m_settings.inputOn = false;
    feed(0.05, batchOf({{7, 50.0}}));
    m_settings.inputOn = true;
    m_filter.setOn(true);
    m_filter.setMin(8);
    feed(0.05, batchOf({{7, 51.0}}));
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_EQ(m_statistic.receivedTotal(), 2U);
    EXPECT_DOUBLE_EQ(m_statistic.clock(), 51.0);
}

TEST_F(StatisticTest, SpreadingTakesItsIdentifierAlone)
{
    show(StatisticView::Spreading);
    m_settings.selectedId = 7;
    feed(0.05, batchOf({{7, 50.0}, {8, 50.1}, {7, 50.2}}));
    EXPECT_EQ(m_statistic.spread().count(), 2U);
    EXPECT_NEAR(m_statistic.spread().last(), 0.2, 1e-9);
    EXPECT_EQ(m_statistic.receivedTotal(), 3U);
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_EQ(m_statistic.busLoad().count(), 0U);
}

TEST_F(StatisticTest, BusLoadTakesAllFrames)
{
    show(StatisticView::BusLoad);
    feed(0.05, batchOf({{7, 50.0}, {8, 50.1}}));
    EXPECT_EQ(m_statistic.busLoad().count(), 2U);
    EXPECT_EQ(m_statistic.spread().count(), 0U);
    EXPECT_EQ(table().rowCount(), 0);
}

TEST_F(StatisticTest, ClearEmptiesAllAndAnotherViewKeepsTheBusLoad)
{
    EXPECT_EQ(table().rateMax(), 1U) << "at the start";
    feed(0.05, batchOf({{7, 50.0}, {7, 50.1}}));
    show(StatisticView::BusLoad);
    feed(0.05, batchOf({{7, 50.2}}));
    m_statistic.spread().add(1.0, 1.0);
    m_statistic.clearForView();
    EXPECT_EQ(table().rowCount(), 0);
    EXPECT_EQ(table().rateMax(), 0U);
    EXPECT_DOUBLE_EQ(table().periodScale(), 0.0);
    EXPECT_EQ(m_statistic.spread().count(), 0U);
    EXPECT_EQ(m_statistic.busLoad().count(), 1U);
    m_statistic.clear();
    EXPECT_EQ(m_statistic.busLoad().count(), 0U);
    EXPECT_EQ(m_statistic.receivedTotal(), 3U) << "the counter goes on";
    show(StatisticView::Average);
    feed(0.05, batchOf({{7, 50.3}}));
    EXPECT_EQ(table().entry(0).count, 1U);
}

TEST_F(StatisticTest, ClockThatStandsStillDoesNotFillTheMemory)
{
    StatisticTable table;
    MessageCan frame;
    table.beginBatch(0.0);
    for (std::size_t i = 0; i < StatisticTable::maxTimes + 1000; ++i) {
        table.add(frame);
    }
    frame.setId(1);
    table.add(frame);
    table.add(frame);
    table.endBatch(0.0);
    EXPECT_EQ(table.entry(0).times.size(), StatisticTable::maxTimes);
    EXPECT_EQ(table.entry(1).times.size(), 1U) << "its newest";
    EXPECT_EQ(table.entry(1).count, 2U);
}

TEST_F(StatisticTest, TextsOfARow)
{
    MessageCan frame;
    frame.setId(0x1F00);
    const char* const prefixes[] = {"S", "E", "SF", "EF", "SB", "EB"};
    for (std::uint32_t mode = 0; mode < 6; ++mode) {
        frame.setMode(static_cast<MessageCan::EMsgMode>(mode));
        StatisticEntry entry;
        entry.frame = frame;
        entry.count = 12;
        EXPECT_EQ(statisticIdText(entry, StatisticView::Average),
                  QLatin1String(prefixes[mode]) + QStringLiteral(" 7936"));
        EXPECT_EQ(statisticIdText(entry, StatisticView::PeriodTime),
                  QLatin1String(prefixes[mode]) + QStringLiteral(" 0x1F00"));
        EXPECT_EQ(statisticCountText(entry), QStringLiteral("12"));
        EXPECT_FALSE(isErrorFrame(entry));
    }
}

TEST_F(StatisticTest, ErrorFrameStaysForAsLongAsItIsTheLastFrame)
{
    StatisticTable table;
    MessageCan frame;
    frame.setFrameType(MessageCan::EFrameType::Error);
    table.beginBatch(0.0);
    table.add(frame);
    EXPECT_EQ(statisticIdText(table.entry(0), StatisticView::Average),
              QStringLiteral("ERROR FRAME"));
    EXPECT_EQ(statisticIdText(table.entry(0), StatisticView::PeriodTime),
              QStringLiteral("ERROR FRAME"));
    frame.setFrameType(MessageCan::EFrameType::Data);
    table.add(frame);
    EXPECT_EQ(statisticIdText(table.entry(0), StatisticView::Average), QStringLiteral("S 0"));
}

TEST_F(StatisticTest, PeriodTextIsInMilliseconds)
{
    EXPECT_EQ(periodText(0.001, 0.0125, -1.0),
              QStringLiteral("[1.000 ms]  12.500 ms  [-1000.000 ms]"));
}

TEST_F(StatisticTest, PeriodBandMapsToItsScaleAndStaysInTheCell)
{
    const auto expect = [](const PeriodBand& band, int left, int width, int line) {
        EXPECT_EQ(band.left, left);
        EXPECT_EQ(band.width, width);
        EXPECT_EQ(band.line, line);
    };
    expect(periodBand(0.25, 0.5, 0.375, 1.0, 400), 100, 100, 150);
    expect(periodBand(0.4, 0.4, 0.4, 0.4, 400), 400, 0, 399);
    expect(periodBand(-5.0, 1e300, 1e300, 0.4, 400), 0, 400, 399);
    expect(periodBand(1.0, 2.0, 3.0, 0.0, 400), 0, 0, 0);
    expect(periodBand(1.0, 2.0, 3.0, -1.0, 400), 0, 0, 0);
    expect(periodBand(1.0, 2.0, 3.0, 4.0, 0), 0, 0, 0);
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    expect(periodBand(noNumber, noNumber, noNumber, noNumber, 400), 0, 0, 0);
}

} // namespace
