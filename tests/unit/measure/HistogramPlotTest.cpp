#include "measure/BusLoadHistogram.h"
#include "measure/BusLoadPlot.h"
#include "measure/Milliseconds.h"
#include "measure/SpreadHistogram.h"
#include "measure/SpreadPlot.h"
#include "tests/unit/measure/BusLoadSamples.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

using zul::test::loadOf;

// A widget of 630 x 400 has its plot from 80 to 580 and from 150 to 350.
constexpr PlotSize size{630, 400};
constexpr PlotColor red{255, 0, 0};
constexpr PlotColor green{0, 200, 0};
constexpr PlotColor blue{0, 0, 200};
constexpr PlotColor black{0, 0, 0};
constexpr PlotColor grid{220, 220, 220};
constexpr PlotColor grey{150, 150, 150};

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

std::vector<PlotLine> linesOf(const PlotItems& items, const PlotColor& color, int width = 1)
{
    std::vector<PlotLine> found;
    for (const PlotLine& line : all<PlotLine>(items)) {
        if (line.color == color && line.width == width) {
            found.push_back(line);
        }
    }
    return found;
}

bool hasLine(const PlotItems& items, const PlotColor& color, PlotPoint from, PlotPoint to)
{
    for (const PlotLine& line : linesOf(items, color)) {
        if (std::abs(line.from.x - from.x) + std::abs(line.from.y - from.y) +
                std::abs(line.to.x - to.x) + std::abs(line.to.y - to.y) <
            0.01) {
            return !line.isSmooth;
        }
    }
    return false;
}

/// The texts of a colour at a place.
QString textAt(const PlotItems& items, const PlotColor& color, double x, double y)
{
    QString found;
    for (const PlotText& text : all<PlotText>(items)) {
        if (text.color == color && std::abs(text.place.x - x) < 0.5 && text.place.y == y) {
            found += text.text;
        }
    }
    return found;
}

/// Periods of 10 ms, of 20 ms twice, and of 30 ms.
SpreadHistogram someSpread()
{
    SpreadHistogram spread;
    for (const double time : {1.0, 1.01, 1.03, 1.05, 1.08}) {
        spread.add(time, 1.0);
    }
    return spread;
}

TEST(PlotFrame, LiesInItsWidget)
{
    const PlotFrame frame(size, 2.0, 4.0, 8);
    EXPECT_EQ(PlotFrame::left, 80);
    EXPECT_EQ(frame.right(), 580);
    EXPECT_EQ(frame.base(), 350);
    EXPECT_EQ(frame.top(), 150);
    EXPECT_DOUBLE_EQ(frame.x(2.0), 80.0);
    EXPECT_DOUBLE_EQ(frame.x(3.0), 330.0);
    EXPECT_DOUBLE_EQ(frame.x(4.0), 580.0);
    EXPECT_DOUBLE_EQ(frame.y(0), 350.0);
    EXPECT_DOUBLE_EQ(frame.y(2), 300.0);
    EXPECT_DOUBLE_EQ(frame.y(8), 150.0);
}

TEST(PlotFrame, WithoutRangeOrCountsNothingIsDividedByZero)
{
    const PlotFrame frame(size, 2.0, 2.0, 0);
    EXPECT_DOUBLE_EQ(frame.x(2.0), 80.0);
    EXPECT_DOUBLE_EQ(frame.x(9.0), 80.0);
    EXPECT_DOUBLE_EQ(frame.y(0), 350.0);
    EXPECT_DOUBLE_EQ(frame.y(5), 350.0);
    const PlotFrame tiny({10, 10}, 0.0, 1.0, 1);
    EXPECT_EQ(tiny.width(), 0);
    EXPECT_EQ(tiny.height(), 0);
    EXPECT_DOUBLE_EQ(tiny.x(1.0), 80.0);
}

TEST(PlotFrame, NoPlaceIsFurtherOutThanABound)
{
    const PlotFrame frame(size, 0.0, 1e-5, 1);
    EXPECT_LE(frame.x(1e9), PlotFrame::farAway + PlotFrame::left);
    EXPECT_GE(frame.x(-1e9), -PlotFrame::farAway);
}

TEST(SpreadPlot, AxesArrowsAndNames)
{
    for (const HistogramMode mode : {HistogramMode::LineGraph, HistogramMode::BlockGraph}) {
        const PlotItems items = spreadPlot(someSpread(), mode, size);
        EXPECT_TRUE(hasLine(items, black, {70, 350}, {600, 350}));
        EXPECT_TRUE(hasLine(items, black, {70, 350}, {70, 150}));
        const auto heads = all<PlotArrowHead>(items);
        ASSERT_EQ(heads.size(), 3U);
        EXPECT_DOUBLE_EQ(heads[0].corners[0].x, 65.0);
        EXPECT_DOUBLE_EQ(heads[0].corners[0].y, 130.0);
        EXPECT_DOUBLE_EQ(heads[0].corners[2].x, 70.0);
        EXPECT_DOUBLE_EQ(heads[0].corners[2].y, 120.0);
        EXPECT_DOUBLE_EQ(heads[1].corners[0].x, 590.0);
        EXPECT_DOUBLE_EQ(heads[1].corners[0].y, 345.0);
        EXPECT_DOUBLE_EQ(heads[1].corners[2].x, 600.0);
        EXPECT_DOUBLE_EQ(heads[1].corners[2].y, 350.0);
        EXPECT_EQ(textAt(items, black, 85, 130), QStringLiteral("Msg Total"));
        EXPECT_EQ(textAt(items, black, 590, 365), QStringLiteral("T"));
        EXPECT_TRUE(hasLine(items, grey, {65, 150}, {580, 150}));
    }
}

TEST(SpreadPlot, GridHasFifthsAndTenths)
{
    const PlotItems items = spreadPlot(someSpread(), HistogramMode::LineGraph, size);
    EXPECT_EQ(linesOf(items, grid).size(), 14U);
    for (const double y : {310.0, 270.0, 230.0, 190.0}) {
        EXPECT_TRUE(hasLine(items, grid, {70, y}, {580, y})) << y;
    }
    for (int i = 1; i <= 10; ++i) {
        const double x = 80.0 + 50.0 * i;
        EXPECT_TRUE(hasLine(items, grid, {x, 350}, {x, 150})) << x;
    }
}

TEST(SpreadPlot, LineGraphJoinsThePeaks)
{
    const SpreadHistogram spread = someSpread();
    const PlotFrame frame(size, spread.lowest(), spread.highest(), spread.maxCount());
    const PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, size);
    const auto curve = linesOf(items, green, 2);
    ASSERT_EQ(curve.size(), 2U) << "none before the first";
    EXPECT_TRUE(curve[0].isSmooth);
    EXPECT_NEAR(curve[0].from.x, frame.x(0.01), 0.2);
    EXPECT_DOUBLE_EQ(curve[0].from.y, 250.0);
    EXPECT_NEAR(curve[0].to.x, frame.x(0.02), 0.2);
    EXPECT_DOUBLE_EQ(curve[0].to.y, 150.0);
    EXPECT_NEAR(curve[1].to.x, frame.x(0.03), 0.2);
    EXPECT_DOUBLE_EQ(curve[1].to.y, 250.0);
    const auto peaks = linesOf(items, red);
    ASSERT_EQ(peaks.size(), 3U);
    for (const PlotLine& peak : peaks) {
        EXPECT_DOUBLE_EQ(peak.from.y, 350.0);
        EXPECT_DOUBLE_EQ(peak.from.x, peak.to.x);
        EXPECT_FALSE(peak.isSmooth);
    }
    EXPECT_DOUBLE_EQ(peaks[1].to.y, 150.0);
    EXPECT_TRUE(all<PlotRectangle>(items).empty());
}

TEST(SpreadPlot, BlockGraphHasCentredBlocks)
{
    const PlotItems items = spreadPlot(someSpread(), HistogramMode::BlockGraph, size);
    const auto blocks = all<PlotRectangle>(items);
    ASSERT_EQ(blocks.size(), 3U);
    for (const PlotRectangle& block : blocks) {
        EXPECT_TRUE(block.color == (PlotColor{0, 0, 180}));
        EXPECT_EQ(block.width, 1) << "a slot is less than a pixel here";
        EXPECT_EQ(block.top + block.height, 350);
    }
    EXPECT_EQ(blocks[0].height, 100);
    EXPECT_EQ(blocks[1].height, 200);
    EXPECT_NEAR(blocks[1].left, 330, 1);
    EXPECT_TRUE(linesOf(items, red).empty());
    EXPECT_TRUE(linesOf(items, green, 2).empty());
}

TEST(SpreadPlot, WideBlocksEndAtTheAxis)
{
    SpreadHistogram spread;
    for (const double time : {1.0, 1.01, 1.02, 1.03002}) {
        spread.add(time, 1.0);
    }
    // The range is 10 ms - 6 us to 10.02 ms + 6 us: slots of 156 pixels, two apart.
    const PlotFrame frame(size, spread.lowest(), spread.highest(), spread.maxCount());
    EXPECT_NEAR(frame.span(1e-5), 156.25, 0.1);
    const auto blocks = all<PlotRectangle>(spreadPlot(spread, HistogramMode::BlockGraph, size));
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_NEAR(blocks[0].left + blocks[0].width / 2, frame.x(0.01), 1.0);
    EXPECT_EQ(blocks[0].width, 157);
    for (const PlotRectangle& block : blocks) {
        EXPECT_GE(block.left, 70);
        EXPECT_LE(block.left + block.width, size.width);
    }
}

TEST(SpreadPlot, MarksRangeFilteredAverageAndLast)
{
    const SpreadHistogram spread = someSpread();
    const PlotFrame frame(size, spread.lowest(), spread.highest(), spread.maxCount());
    const PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, size);
    EXPECT_TRUE(hasLine(items, blue, {80, 350}, {80, 370}));
    EXPECT_EQ(textAt(items, blue, 60, 382), QStringLiteral("10.000 ms")) << "the first has no room";
    EXPECT_TRUE(hasLine(items, blue, {580, 350}, {580, 370}));
    EXPECT_EQ(textAt(items, blue, 560, 382), QStringLiteral("30.006 ms"));
    const double average = frame.x(0.02);
    EXPECT_TRUE(hasLine(items, green, {average, 350}, {average, 360}));
    EXPECT_EQ(textAt(items, green, average - 20, 395), QStringLiteral("20.000 ms"));
    const PlotArrowHead last = all<PlotArrowHead>(items)[2];
    EXPECT_TRUE(last.color == red);
    EXPECT_NEAR(last.corners[2].x, frame.x(0.03), 0.01);
    EXPECT_DOUBLE_EQ(last.corners[2].y, 340.0);
    EXPECT_DOUBLE_EQ(last.corners[0].y, 350.0);
}

TEST(SpreadPlot, FilteredPeriodIsMarkedWhereItLies)
{
    SpreadHistogram spread;
    double now = 1.0;
    for (int i = 0; i < 50; ++i) {
        spread.add(i % 2 == 0 ? i * 0.01 : i * 0.01 + 0.001, now);
        now += 1.0;
    }
    const PlotFrame frame(size, spread.lowest(), spread.highest(), spread.maxCount());
    const double x = frame.x(spread.filtered());
    const PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, size);
    EXPECT_TRUE(hasLine(items, blue, {x, 350}, {x, 370}));
    EXPECT_EQ(textAt(items, blue, x - 20, 382), msText(spread.filtered()));
}

TEST(SpreadPlot, MarkOutsideOfTheWidgetIsLeftOut)
{
    SpreadHistogram spread;
    for (int i = 0; i < 4; ++i) {
        spread.add(i * 0.1, 1.0);
    }
    ASSERT_DOUBLE_EQ(spread.filtered(), 0.0) << "no wall time has passed";
    const PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, size);
    EXPECT_EQ(linesOf(items, blue).size(), 2U);
}

TEST(SpreadPlot, ScaleTextsAndSummary)
{
    const SpreadHistogram spread = someSpread();
    const PlotItems items = spreadPlot(spread, HistogramMode::BlockGraph, size);
    EXPECT_EQ(textAt(items, black, 10, 142), QStringLiteral("2"));
    EXPECT_EQ(textAt(items, black, 10, 158), QStringLiteral("40.00 %")) << "2 of 5";
    const auto line = [&](int y) {
        return textAt(items, black, 30, y) + textAt(items, black, 140, y);
    };
    EXPECT_EQ(line(20), QStringLiteral("Average: ") + msText(spread.filtered()));
    EXPECT_EQ(line(35), QStringLiteral("Total Average: 20.000 ms"));
    EXPECT_EQ(line(50), QStringLiteral("Minimum: 10.000 ms"));
    EXPECT_EQ(line(65), QStringLiteral("Maximum: 30.006 ms"));
    EXPECT_EQ(line(80), QStringLiteral("Jitter: 20.006 ms (-10.000 / +10.006)"));
    EXPECT_EQ(line(95), QStringLiteral("Total Messages: 5"));
}

TEST(SpreadPlot, BeforeAnyPeriodThereIsNothingToDrawInThePlot)
{
    SpreadHistogram spread;
    PlotItems items = spreadPlot(spread, HistogramMode::LineGraph, size);
    EXPECT_EQ(textAt(items, black, 10, 142), QStringLiteral("0"));
    EXPECT_EQ(textAt(items, black, 10, 158), QString()) << "no share of nothing";
    EXPECT_EQ(textAt(items, black, 30, 20), QString());
    spread.add(5.0, 1.0);
    items = spreadPlot(spread, HistogramMode::BlockGraph, size);
    EXPECT_TRUE(all<PlotRectangle>(items).empty());
    EXPECT_EQ(textAt(items, black, 10, 158), QStringLiteral("0.00 %"));
    EXPECT_EQ(textAt(items, black, 140, 20), QStringLiteral(": 0.000 ms"));
    EXPECT_EQ(textAt(items, black, 140, 80), QStringLiteral(": 0.000 ms (0.000 / +0.000)"));
    EXPECT_EQ(textAt(items, black, 140, 95), QStringLiteral(": 1"));
}

TEST(SpreadPlot, OnePeriodStandsAtTheLeftEnd)
{
    SpreadHistogram spread;
    spread.add(1.0, 1.0);
    spread.add(1.1, 1.0);
    const auto blocks = all<PlotRectangle>(spreadPlot(spread, HistogramMode::BlockGraph, size));
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_NEAR(blocks[0].left, 80, 1);
    EXPECT_EQ(blocks[0].width, 1);
    EXPECT_EQ(blocks[0].height, 200);
}

TEST(SpreadPlot, AbsurdPeriodsPaintNeitherManyItemsNorOutsideOfTheWidget)
{
    SpreadHistogram spread;
    std::mt19937 generator(825); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    std::uniform_real_distribution<double> times(0.0, 4e9);
    for (int i = 0; i < 100'000; ++i) {
        spread.add(i % 3 == 0 ? times(generator) * 1e-6 : times(generator), 1.0 + i * 1e-3);
    }
    for (const HistogramMode mode : {HistogramMode::LineGraph, HistogramMode::BlockGraph}) {
        const PlotItems items = spreadPlot(spread, mode, size);
        EXPECT_LT(items.size(), 8U * 500U + 50U);
        for (const PlotRectangle& block : all<PlotRectangle>(items)) {
            EXPECT_GE(block.left, 0);
            EXPECT_GE(block.width, 0);
            EXPECT_LE(block.left + block.width, size.width);
            EXPECT_GE(block.top, 150);
        }
        for (const PlotLine& line : all<PlotLine>(items)) {
            EXPECT_GE(line.to.x, 0.0);
            EXPECT_LE(line.to.x, size.width + 2.0);
        }
    }
}

TEST(SpreadPlot, SlotsOfOnePixelKeepFirstLowestHighestAndLast)
{
    SpreadHistogram spread;
    double time = 0.0;
    const auto period = [&](double seconds, int times) {
        for (int i = 0; i < times; ++i) {
            time += seconds;
            spread.add(time, 1.0);
        }
    };
    spread.add(time, 1.0);
    period(0.1, 2);
    period(0.10001, 2);
    period(0.10002, 5);
    period(0.10003, 1);
    period(0.10004, 3);
    period(0.10005, 2);
    period(1.0, 1);
    const auto peaks = linesOf(spreadPlot(spread, HistogramMode::LineGraph, size), red);
    ASSERT_EQ(peaks.size(), 5U);
    std::vector<int> heights;
    for (const PlotLine& peak : peaks) {
        heights.push_back(static_cast<int>(std::lround(peak.from.y - peak.to.y)) / 40);
    }
    EXPECT_EQ(heights, (std::vector<int>{2, 5, 1, 2, 1}));
}

TEST(SpreadPlot, TinyWidgetsAreDrawn)
{
    for (const PlotSize tiny : {PlotSize{0, 0}, PlotSize{1, 1}, PlotSize{130, 200}}) {
        for (const HistogramMode mode : {HistogramMode::LineGraph, HistogramMode::BlockGraph}) {
            for (const PlotRectangle& block :
                 all<PlotRectangle>(spreadPlot(someSpread(), mode, tiny))) {
                EXPECT_GE(block.width, 0);
            }
        }
    }
}

TEST(BusLoadPlot, NamesPeakAndTotal)
{
    const PlotItems items =
        busLoadPlot(loadOf(100, {1.0, 1.01, 2.0}), HistogramMode::LineGraph, size);
    EXPECT_EQ(textAt(items, black, 85, 130), QStringLiteral("Msg/s"));
    EXPECT_EQ(textAt(items, black, 590, 365), QStringLiteral("T"));
    EXPECT_EQ(textAt(items, black, 10, 142), QStringLiteral("20")) << "2 in 100 ms";
    EXPECT_EQ(textAt(items, black, 30, 95), QStringLiteral("Total Messages"));
    EXPECT_EQ(textAt(items, black, 140, 95), QStringLiteral(": 3"));
    EXPECT_EQ(textAt(items, blue, 60, 382), QStringLiteral("0.000 ms"));
    EXPECT_EQ(textAt(items, blue, 560, 382), QStringLiteral("5000.000 ms"));
    EXPECT_TRUE(hasLine(items, blue, {580, 350}, {580, 370}));
    EXPECT_TRUE(hasLine(items, grey, {65, 150}, {580, 150}));
    EXPECT_EQ(linesOf(items, grid).size(), 14U);
    EXPECT_EQ(all<PlotArrowHead>(items).size(), 2U);
}

TEST(BusLoadPlot, EmptyOneHasNoSlotsAndTellsZeros)
{
    const PlotItems items = busLoadPlot(BusLoadHistogram(), HistogramMode::BlockGraph, size);
    EXPECT_TRUE(all<PlotRectangle>(items).empty());
    EXPECT_EQ(textAt(items, black, 10, 142), QStringLiteral("0"));
    EXPECT_EQ(textAt(items, black, 140, 95), QStringLiteral(": 0"));
    EXPECT_EQ(textAt(items, blue, 560, 382), QStringLiteral("0.000 ms"));
}

TEST(BusLoadPlot, ModesDifferWhereTheResolutionDoesNotDivide1000)
{
    const BusLoadHistogram load = loadOf(30, {0.0, 3.0}); // slots 0 and 100
    const auto peaks = linesOf(busLoadPlot(load, HistogramMode::LineGraph, size), red);
    ASSERT_EQ(peaks.size(), 2U);
    EXPECT_NEAR(peaks[1].to.x, 80 + 500 * 3.0 / 5, 0.01);
    const auto blocks = all<PlotRectangle>(busLoadPlot(load, HistogramMode::BlockGraph, size));
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_EQ(blocks[1].width, 4);
    EXPECT_NEAR(blocks[1].left + 2, 80 + 500 * (100.0 / 33) / 5, 1.0);
}

TEST(BusLoadPlot, LastBlocksMayStandBehindTheMeasureTime)
{
    const BusLoadHistogram load = loadOf(91, {0.0, 4.9}); // slot 53 is drawn at 5.3 s
    const auto blocks = all<PlotRectangle>(busLoadPlot(load, HistogramMode::BlockGraph, size));
    ASSERT_EQ(blocks.size(), 2U);
    EXPECT_NEAR(blocks[1].left + blocks[1].width / 2, 610, 1);
    EXPECT_LE(blocks[1].left + blocks[1].width, size.width);
}

} // namespace
