#include "measure/BusLoadHistogram.h"
#include "measure/BusLoadPlot.h"
#include "measure/DialScale.h"
#include "measure/Milliseconds.h"
#include "measure/SpreadHistogram.h"
#include "measure/SpreadPlot.h"
#include "measure/StatisticRowText.h"
#include "measure/StatisticTable.h"
#include "tests/unit/measure/BusLoadSamples.h"

#include <chrono>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using zul::test::loadOf;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();
constexpr PlotSize wideSize{1630, 400}; // its plot goes from 80 to 1580

template <typename Item>
std::vector<Item> all(const PlotItems& items)
{
    std::vector<Item> found;
    for (const PlotItem& item : items) {
        if (const auto* one = std::get_if<Item>(&item)) {
            found.push_back(*one);
        }
    }
    return found;
}

bool hasText(const PlotItems& items, const char* text)
{
    for (const PlotText& one : all<PlotText>(items)) {
        if (one.text == QLatin1String(text)) {
            return true;
        }
    }
    return false;
}

TEST(DialScaleExtremes, ScaleOfAllNumbersHasItsMiddle)
{
    EXPECT_DOUBLE_EQ(dialShare(0.0, -largest, largest), 0.5);
    EXPECT_DOUBLE_EQ(dialShare(largest, -largest, largest), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(-largest, -largest, largest), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(0.0, largest, -largest), 0.5);
}

TEST(DialScaleExtremes, ScaleOfTheSmallestNumbersHasItsEnds)
{
    const double smallest = std::numeric_limits<double>::denorm_min();
    EXPECT_DOUBLE_EQ(dialShare(smallest, 0.0, smallest), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(0.0, 0.0, smallest), 0.0);
    EXPECT_DOUBLE_EQ(dialShare(1.0, 0.0, smallest), 1.0);
}

TEST(DialScaleExtremes, InfiniteEndsAndValuesHaveAPlace)
{
    EXPECT_DOUBLE_EQ(dialShare(infinity, 0.0, 1.0), 1.0);
    EXPECT_DOUBLE_EQ(dialShare(-infinity, 0.0, 1.0), 0.0);
    for (const double end : {infinity, -infinity, std::nan("")}) {
        EXPECT_DOUBLE_EQ(dialShare(5.0, end, 1.0), 0.0) << end;
        EXPECT_DOUBLE_EQ(dialShare(5.0, 0.0, end), 0.0) << end;
    }
    EXPECT_EQ(dialValueText(infinity, 2), QStringLiteral("inf"));
    EXPECT_EQ(dialValueText(-infinity, 2), QStringLiteral("-inf"));
}

TEST(BusLoadBlocks, NoneLiesBeyondTheWidget)
{
    // 1000 / 91 is 10 and a remainder of 90: the last of 54 slots is drawn at 5.3 s.
    std::vector<double> times;
    for (int i = 0; i < 500; ++i) {
        times.push_back(i * 0.01);
    }
    const BusLoadHistogram load = loadOf(91, times);
    for (const int width : {0, 1, 69, 70, 71, 79, 81, 131, 400, 630, 1630, 4000}) {
        for (const HistogramMode mode : {HistogramMode::BlockGraph, HistogramMode::LineGraph}) {
            for (const PlotRectangle& block :
                 all<PlotRectangle>(busLoadPlot(load, mode, {width, 400}))) {
                EXPECT_GE(block.left, 70) << width;
                EXPECT_GT(block.width, 0) << width;
                EXPECT_LE(block.left + block.width, width);
            }
        }
    }
}

TEST(BusLoadBlocks, OneThatReachesOverTheEdgeIsCutAndTheNextIsLeftOut)
{
    // Slots of 27.3 + 1 pixels at 10 in a second: that of 5.1 s is centred on x = 1610, that of
    // 5.2 s on x = 1640, and that of 5.3 s on x = 1670.
    const BusLoadHistogram load = loadOf(91, {0.0, 4.65, 4.74, 4.9});
    ASSERT_EQ(load.buckets().size(), 4U);
    const auto blocks = all<PlotRectangle>(busLoadPlot(load, HistogramMode::BlockGraph, wideSize));
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_EQ(blocks[1].left + blocks[1].width / 2, 1610);
    EXPECT_EQ(blocks[2].left, 1626);
    EXPECT_EQ(blocks[2].width, 4);
}

TEST(SpreadBlocks, NoneLiesBeyondTheWidget)
{
    // Two equal periods: a slot is nearly as wide as the plot, and may be centred on its end.
    for (const double period : {0.0100049, 0.0100051, 0.009996}) {
        SpreadHistogram spread;
        for (int i = 0; i < 3; ++i) {
            spread.add(i * period, 1.0);
        }
        for (const int width : {0, 69, 71, 131, 200, 630, 4000}) {
            for (const PlotRectangle& block :
                 all<PlotRectangle>(spreadPlot(spread, HistogramMode::BlockGraph, {width, 400}))) {
                EXPECT_GE(block.left, 70) << width;
                EXPECT_GT(block.width, 0) << width;
                EXPECT_LE(block.left + block.width, width);
            }
        }
    }
}

TEST(HistogramTexts, BothPlotsNameTheirTotalInTheSameRow)
{
    SpreadHistogram spread;
    spread.add(1.0, 1.0);
    for (const PlotItems& items :
         {spreadPlot(spread, HistogramMode::LineGraph, wideSize),
          busLoadPlot(loadOf(10, {1.0}), HistogramMode::LineGraph, wideSize)}) {
        int found = 0;
        for (const PlotText& text : all<PlotText>(items)) {
            if (text.place.y == 95.0) {
                EXPECT_EQ(text.text, text.place.x < 100 ? QStringLiteral("Total Messages")
                                                        : QStringLiteral(": 1"));
                EXPECT_EQ(text.place.x, text.place.x < 100 ? 30.0 : 140.0);
                ++found;
            }
        }
        EXPECT_EQ(found, 2);
    }
}

TEST(HistogramTexts, TimesAreShownInMilliseconds)
{
    EXPECT_EQ(msText(0.0012345), QStringLiteral("1.234 ms"));
    EXPECT_EQ(msText(-2.0), QStringLiteral("-2000.000 ms"));
    EXPECT_EQ(periodText(0.009, 0.01, 0.0115),
              QStringLiteral("[9.000 ms]  10.000 ms  [11.500 ms]"));
}

TEST(HistogramTexts, LargestCountIsShownAsItIs)
{
    StatisticEntry entry;
    entry.count = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(statisticCountText(entry), QStringLiteral("4294967295"));
}

TEST(SpreadTexts, JitterIsTheRangeAndWhereItLiesAboutTheAverage)
{
    SpreadHistogram spread;
    for (const double time : {1.0, 1.01, 1.021, 1.03}) {
        spread.add(time, 1.0);
    }
    // 10, 11 and 9 ms, with 0.006 ms of room at either end.
    const PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, wideSize);
    EXPECT_TRUE(hasText(items, ": 8.994 ms"));
    EXPECT_TRUE(hasText(items, ": 11.006 ms"));
    EXPECT_TRUE(hasText(items, ": 10.000 ms"));
    EXPECT_TRUE(hasText(items, ": 2.012 ms (-1.006 / +1.006)"));
    EXPECT_TRUE(hasText(items, "25.00 %")) << "1 of 4 messages";
}

zul::MessageCan frameAt(std::uint32_t id, double time)
{
    zul::MessageCan frame;
    frame.setId(id);
    frame.setTimeStamp(time);
    return frame;
}

TEST(StatisticTableExtremes, TensOfThousandsOfIdentifiersHaveTheirRows)
{
    constexpr std::uint32_t count = 50'000;
    StatisticTable table;
    const auto begin = std::chrono::steady_clock::now();
    for (int batch = 0; batch < 3; ++batch) {
        table.beginBatch(50.0 + batch * 0.05);
        for (std::uint32_t id = 0; id < count; ++id) {
            table.add(frameAt(id * 7, 50.0 + batch * 0.05));
        }
        table.endBatch(50.0 + batch * 0.05);
    }
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    ASSERT_EQ(table.rowCount(), static_cast<int>(count));
    EXPECT_EQ(table.entry(49'999).frame.id(), 49'999U * 7U);
    EXPECT_EQ(table.rate(0), 3);
    EXPECT_EQ(table.rate(49'999), 3);
    EXPECT_LT(took.count(), 10.0) << "it grows with the number of rows, not with its square";
    table.beginBatch(60.0);
    table.endBatch(60.0);
    EXPECT_EQ(table.rate(49'999), 0);
    EXPECT_FALSE(table.entry(49'999).active);
}

TEST(StatisticTableExtremes, TimesAtTheEndsOfTheirRangeAreBounded)
{
    StatisticTable table;
    table.beginBatch(0.0);
    for (const double time : {0.0, 4'294'967'295.999, 0.0, 1.0}) {
        table.add(frameAt(7, time));
    }
    table.endBatch(0.0);
    EXPECT_NEAR(table.entry(0).periodMax, 4'294'967'295.999, 1e-3);
    EXPECT_NEAR(table.entry(0).periodMin, -4'294'967'295.999, 1e-3);
    const PeriodBand band = periodBand(table.entry(0).periodMin, table.entry(0).periodMax,
                                       std::nan(""), table.periodScale(), 120);
    EXPECT_EQ(band.left, 0);
    EXPECT_EQ(band.width, 100);
    EXPECT_EQ(band.line, 0);
}

} // namespace
