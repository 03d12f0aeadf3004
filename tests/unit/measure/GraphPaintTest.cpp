#include "tests/unit/measure/GraphFixture.h"

#include <gmock/gmock.h>

// What the picture of the oscilloscope consists of.

namespace zul::test {

namespace {

using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

class GraphPaintTest : public GraphTest
{
protected:
    /// One visible channel with a range of 0 to 10, in split mode.
    void showStrip()
    {
        show(1);
        m_engine.setSplitMode(1);
        m_engine.setParameterYMin(0, 0.0F);
        m_engine.setParameterYMax(0, 10.0F);
    }
    std::vector<GraphPoint> trace(std::size_t index = 0) const
    {
        const std::vector<GraphItem> strips = items(GraphItem::Kind::LineStrip);
        std::vector<GraphPoint> points;
        if (index < strips.size()) {
            for (std::size_t i = 0; i < strips[index].count; ++i) {
                points.push_back(point(strips[index], i));
            }
        }
        return points;
    }
};

TEST_F(GraphPaintTest, PlotFollowsTheWidestLabelOnePictureLater)
{
    paint(1);
    // The labels of the single graph's range, "-0.4" among them, are four letters wide.
    EXPECT_EQ(state().labelWidth, 24);
    EXPECT_EQ(state().plotLeft, 44.0);
    EXPECT_EQ(state().plotWidth, 546.0);
    EXPECT_EQ(state().plotBottom, 40.0);
    EXPECT_EQ(state().plotHeight, 300.0);
    EXPECT_EQ(point(items(GraphItem::Kind::Polygon)[0], 0).x, 0.0F);
    paint(1);
    EXPECT_EQ(point(items(GraphItem::Kind::Polygon)[0], 0).x, 44.0F);
}

TEST_F(GraphPaintTest, PlotIsFilledFirstAndBackgroundIsTheDrawings)
{
    m_engine.setPlotColor(0.1F, 0.2F, 0.3F);
    m_engine.setBackColor(0.4F, 0.5F, 0.6F);
    paint();
    const GraphItem& plot = m_drawing.items().front();
    EXPECT_EQ(plot.kind, GraphItem::Kind::Polygon);
    EXPECT_TRUE(isColor(plot.color, 0.1F, 0.2F, 0.3F));
    EXPECT_EQ(point(plot, 2).x, 590.0F);
    EXPECT_EQ(point(plot, 2).y, 340.0F);
    EXPECT_TRUE(isColor(m_drawing.background(), 0.4F, 0.5F, 0.6F));
}

TEST_F(GraphPaintTest, TimeAxisHasTicksLabelsAndDottedGrid)
{
    m_engine.setLabelColor(0.0F, 0.0F, 1.0F);
    paint();
    // 546 pixels for 60 s: the raw step is 7.7, the step 10.
    const GraphText* label = text("0:00:20");
    ASSERT_NE(label, nullptr);
    const float x = 44.0F + 546.0F / 60.0F * 20.0F;
    EXPECT_FLOAT_EQ(label->place.x, x - 21.0F);
    EXPECT_FLOAT_EQ(label->place.y, 40.0F - 10.0F - 13.0F - 5.0F);
    EXPECT_THAT(texts(), IsSupersetOf({"0:00:00", "0:00:10", "0:00:50"}));
    EXPECT_THAT(texts(), Contains("0:01:00"));
    bool hasTick = false;
    bool hasMinor = false;
    for (const GraphItem& line : lines(0.0F, 0.0F, 1.0F)) {
        hasTick = hasTick ||
                  (point(line, 0).x == x && point(line, 0).y == 30.0F && point(line, 1).y == 40.0F);
        hasMinor = hasMinor || (point(line, 0).y == 35.0F && point(line, 1).y == 40.0F);
    }
    EXPECT_TRUE(hasTick);
    EXPECT_TRUE(hasMinor);
    bool hasGrid = false;
    for (const GraphItem& line : lines(1.0F, 0.3F, 0.3F, true)) {
        hasGrid = hasGrid || (point(line, 0).x == x && point(line, 0).y == 40.0F &&
                              point(line, 1).y == 340.0F);
    }
    EXPECT_TRUE(hasGrid);
}

TEST_F(GraphPaintTest, GridOffLeavesTheTicks)
{
    m_engine.setGridOn(false);
    paint();
    EXPECT_TRUE(lines(1.0F, 0.3F, 0.3F, true).empty());
    EXPECT_THAT(texts(), Contains("0:00:10"));
}

TEST_F(GraphPaintTest, NegativeTimesHaveTicksWithoutLabels)
{
    m_engine.setCurrentTime(5.0);
    paint();
    EXPECT_EQ(state().xMin, -55.0);
    EXPECT_THAT(texts(), Contains("0:00:00"));
    for (const std::string& label : texts()) {
        EXPECT_THAT(label, Not(testing::StartsWith("-0:")));
    }
    EXPECT_EQ(lines(1.0F, 0.3F, 0.3F, true).size(), 6U + 10U); // -50 to 0, and -0.4 to 1.4
}

TEST_F(GraphPaintTest, ValueAxisOfTheSingleGraphIsInLabelColor)
{
    m_engine.setLabelColor(0.0F, 0.0F, 1.0F);
    paint();
    // 300 pixels for 2: the raw step is 0.17, the step 0.2.
    const GraphText* label = text("0.4");
    ASSERT_NE(label, nullptr);
    const float y = 40.0F + 150.0F * 0.9F;
    EXPECT_NEAR(label->place.x, 44.0F - 10.0F - 5.0F - 18.0F, 1e-3F);
    EXPECT_NEAR(label->place.y, y - 13.0F * 0.4F, 1e-3F);
    bool hasTick = false;
    for (const GraphItem& line : lines(0.0F, 0.0F, 1.0F)) {
        hasTick = hasTick || (point(line, 0).x == 34.0F && point(line, 1).x == 44.0F &&
                              std::abs(point(line, 0).y - y) < 1e-3F);
    }
    EXPECT_TRUE(hasTick);
}

TEST_F(GraphPaintTest, SplitModeHasAnAxisForEachStripInItsColor)
{
    showStrip();
    paint();
    EXPECT_EQ(text("-0.4"), nullptr);
    const GraphText* label = text("5.0");
    ASSERT_NE(label, nullptr);
    EXPECT_FLOAT_EQ(label->place.y, 190.0F - 13.0F * 0.4F);
    EXPECT_FALSE(lines(1.0F, 0.0F, 0.0F).empty());
}

TEST_F(GraphPaintTest, SingleGraphDrawsAllChannelsOnItsFixedRange)
{
    show(2);
    m_engine.setParameterYMax(1, 100.0F);
    m_engine.setParameterAutoScale(0, true);
    paint();
    for (const std::size_t i : {0U, 1U}) {
        EXPECT_EQ(channel(i).yMin, -0.5);
        EXPECT_EQ(channel(i).yMax, 1.5);
        EXPECT_EQ(channel(i).bandBottom, 40.0);
        EXPECT_EQ(channel(i).bandHeight, 300.0);
    }
}

TEST_F(GraphPaintTest, SplitModeGivesEachVisibleChannelAStripFromTheTop)
{
    m_engine.setSplitMode(1);
    m_engine.setParameterVisible(0, true);
    m_engine.setParameterVisible(2, true);
    m_engine.setParameterVisible(5, true);
    paint();
    EXPECT_EQ(state().visibleCount, 3);
    EXPECT_EQ(channel(0).bandBottom, 240.0);
    EXPECT_EQ(channel(2).bandBottom, 140.0);
    EXPECT_EQ(channel(5).bandBottom, 40.0);
    for (const std::size_t i : {0U, 2U, 5U}) {
        EXPECT_EQ(channel(i).bandHeight, 100.0);
    }
}

TEST_F(GraphPaintTest, TraceLiesWhereTimeAndValueSay)
{
    showStrip();
    m_engine.setAutoMode(0);
    paint();
    addAt(0.0, 0.0);
    addAt(30.0, 5.0);
    addAt(60.0, 10.0);
    paint();
    const std::vector<GraphPoint> points = trace();
    ASSERT_EQ(points.size(), 3U);
    const auto left = static_cast<float>(state().plotLeft);
    const auto across = static_cast<float>(state().plotWidth);
    EXPECT_FLOAT_EQ(points[0].x, left);
    EXPECT_FLOAT_EQ(points[0].y, 40.0F);
    EXPECT_FLOAT_EQ(points[1].x, left + across / 2.0F);
    EXPECT_FLOAT_EQ(points[1].y, 190.0F);
    EXPECT_FLOAT_EQ(points[2].x, left + across);
    EXPECT_FLOAT_EQ(points[2].y, 340.0F);
}

TEST_F(GraphPaintTest, TraceIsCutByTheScissorOfItsStrip)
{
    show(2);
    m_engine.setSplitMode(1);
    for (const std::uint32_t i : {0U, 1U}) {
        m_engine.setParameterYMax(i, 10.0F);
    }
    m_engine.setAutoMode(0);
    paint();
    addAt(0.0, 0.0, 1);
    addAt(30.0, 20.0, 1);
    paint();
    const std::vector<GraphItem> strips = items(GraphItem::Kind::LineStrip);
    ASSERT_EQ(strips.size(), 1U);
    const GraphScissor& scissor = strips[0].scissor;
    EXPECT_TRUE(scissor.isSet);
    EXPECT_EQ(scissor.x, static_cast<int>(state().plotLeft));
    EXPECT_EQ(scissor.y, 40);
    EXPECT_EQ(scissor.width, static_cast<int>(state().plotWidth));
    EXPECT_EQ(scissor.height, 150);
    EXPECT_TRUE(isColor(strips[0].color, 0.0F, 1.0F, 0.0F));
    EXPECT_EQ(strips[0].size, 1.0F);
}

TEST_F(GraphPaintTest, ScissorIsTruncatedToWholePixels)
{
    show(3);
    m_engine.setSplitMode(1);
    m_engine.resizePicture(width, 351); // strips of 100.33 pixels
    m_engine.setParameterYMax(0, 10.0F);
    m_engine.setAutoMode(0);
    paint();
    addAt(0.0, 0.0);
    addAt(30.0, 20.0);
    paint();
    EXPECT_EQ(items(GraphItem::Kind::LineStrip)[0].scissor.y, 240);
    EXPECT_EQ(items(GraphItem::Kind::LineStrip)[0].scissor.height, 100);
}

TEST_F(GraphPaintTest, AChannelWithOneValueShowsNoLineUntilASecondPointExists)
{
    showStrip();
    m_engine.setAutoMode(0);
    m_engine.setParameterShowSamples(0, true);
    paint();
    addAt(5.0, 5.0);
    paint();
    EXPECT_TRUE(items(GraphItem::Kind::LineStrip).empty());
    EXPECT_EQ(items(GraphItem::Kind::Points).size(), 1U);
    m_engine.addValue(0, 6.0);
    paint();
    EXPECT_EQ(items(GraphItem::Kind::LineStrip).size(), 1U);
}

TEST_F(GraphPaintTest, SamplesAreWhiteDotsOnThePointsOfTheLine)
{
    showStrip();
    m_engine.setAutoMode(0);
    paint();
    addAt(5.0, 5.0);
    addAt(15.0, 6.0);
    paint();
    EXPECT_TRUE(items(GraphItem::Kind::Points).empty());
    m_engine.setParameterShowSamples(0, true);
    paint();
    const GraphItem line = items(GraphItem::Kind::LineStrip)[0];
    const std::vector<GraphItem> dots = items(GraphItem::Kind::Points);
    ASSERT_EQ(dots.size(), 1U);
    EXPECT_EQ(dots[0].first, line.first);
    EXPECT_EQ(dots[0].count, line.count);
    EXPECT_EQ(dots[0].size, 3.0F);
    EXPECT_TRUE(isColor(dots[0].color, 1.0F, 1.0F, 1.0F));
    EXPECT_TRUE(dots[0].scissor.isSet);
}

TEST_F(GraphPaintTest, LeftEndIsTrimmedToOneColumn)
{
    showStrip();
    paint();
    for (int i = 0; i < 200; ++i) {
        addAt(i, 5.0);
    }
    EXPECT_EQ(channel().columns.size(), 200U);
    paint(1);
    EXPECT_EQ(channel().columns.front().time, 138.0); // the window begins at 139
}

TEST_F(GraphPaintTest, ConstantParameterScalesToItsValueAndATenThousandth)
{
    showStrip();
    m_engine.setParameterAutoScale(0, true);
    addAt(1.0, 42.0);
    paint(3);
    EXPECT_DOUBLE_EQ(channel().yMin, 42.0 - 0.0001);
    EXPECT_DOUBLE_EQ(channel().yMax, 42.0 + 0.0001);
}

TEST_F(GraphPaintTest, AutoScaleLeavesATenthAboveAndBelow)
{
    showStrip();
    m_engine.setParameterAutoScale(0, true);
    paint();
    addAt(1.0, -10.0);
    addAt(2.0, 30.0);
    paint(2);
    EXPECT_DOUBLE_EQ(channel().seenMin, -10.0);
    EXPECT_DOUBLE_EQ(channel().seenMax, 30.0);
    EXPECT_DOUBLE_EQ(channel().yMin, -14.0);
    EXPECT_DOUBLE_EQ(channel().yMax, 34.0);
}

TEST_F(GraphPaintTest, SilentChannelGrowsByOneHeldSampleInEachPicture)
{
    showStrip();
    paint();
    addAt(10.0, 5.0);
    paint(1);
    EXPECT_EQ(channel().samples.size(), 1U); // fresh
    m_engine.setCurrentTime(11.0);
    paint(1);
    EXPECT_EQ(channel().samples.size(), 2U);
    paint(1);
    EXPECT_EQ(channel().samples.size(), 3U);
    EXPECT_EQ(channel().samples.back().time, 11.0);
    EXPECT_EQ(channel().samples.back().value, 5.0);
    EXPECT_EQ(channel().columns.size(), 2U); // those of one time fold into one column
    EXPECT_EQ(channel().columns.back().count, 2U);
}

TEST_F(GraphPaintTest, NothingIsHeldInManualModeAndForInvisibleChannels)
{
    show(1);
    addAt(10.0, 5.0, 0);
    m_engine.addValue(1, 5.0);
    m_engine.setAutoMode(0);
    m_engine.setCurrentTime(11.0);
    paint(3);
    EXPECT_EQ(channel(0).samples.size(), 1U);
    m_engine.setAutoMode(1);
    paint(3);
    EXPECT_GT(channel(0).samples.size(), 1U);
    EXPECT_EQ(channel(1).samples.size(), 1U);
}

TEST_F(GraphPaintTest, DataTimesSpanAllChannels)
{
    addAt(3.0, 1.0, 0);
    addAt(4.0, 1.0, 1);
    addAt(8.0, 1.0, 1);
    m_engine.setAutoMode(0);
    paint();
    EXPECT_EQ(state().dataStart, 3.0);
    EXPECT_EQ(state().dataEnd, 8.0);
}

TEST_F(GraphPaintTest, MarkerIsATranslucentBandOverThePlotsHeight)
{
    paint();
    m_engine.markAt(100);
    m_engine.moveMarker(300);
    paint();
    const GraphItem band = items(GraphItem::Kind::Polygon).back();
    EXPECT_TRUE(isColor(band.color, 1.0F, 1.0F, 0.0F));
    EXPECT_EQ(band.color.alpha, 0.3F);
    EXPECT_NEAR(point(band, 0).x, 100.0F, 0.01F);
    EXPECT_NEAR(point(band, 2).x, 300.0F, 0.01F);
    EXPECT_EQ(point(band, 0).y, 40.0F);
    EXPECT_EQ(point(band, 2).y, 340.0F);
}

TEST_F(GraphPaintTest, MarkerIsHeldToThePlot)
{
    paint();
    m_engine.markAt(-500);
    m_engine.moveMarker(5000);
    paint();
    const GraphItem band = items(GraphItem::Kind::Polygon).back();
    EXPECT_EQ(point(band, 0).x, 44.0F);
    EXPECT_EQ(point(band, 2).x, 590.0F);
}

TEST_F(GraphPaintTest, MarkerLiesOverTracesAndUnderTheFrame)
{
    showStrip();
    m_engine.setAutoMode(0);
    addAt(0.0, 0.0);
    addAt(30.0, 5.0);
    paint();
    std::size_t trace = 0;
    std::size_t marker = 0;
    std::size_t frame = 0;
    for (std::size_t i = 0; i < m_drawing.items().size(); ++i) {
        const GraphItem& item = m_drawing.items()[i];
        trace = item.kind == GraphItem::Kind::LineStrip ? i : trace;
        marker = item.kind == GraphItem::Kind::Polygon ? i : marker;
        frame = item.kind == GraphItem::Kind::LineLoop ? i : frame;
    }
    EXPECT_LT(trace, marker);
    EXPECT_LT(marker, frame);
}

TEST_F(GraphPaintTest, CursorIsACrossWithTextsWhileItIsHeld)
{
    showStrip();
    m_engine.setAutoMode(0);
    paint();
    addAt(0.0, 2.0);
    addAt(60.0, 4.0);
    paint(2);
    const int x = static_cast<int>(state().plotLeft + state().plotWidth / 2.0);
    m_engine.holdCursor(x, 160); // in the middle of the plot
    paint(1);
    const std::vector<GraphItem> cross = lines(1.0F, 1.0F, 1.0F);
    ASSERT_EQ(cross.size(), 2U);
    EXPECT_NEAR(point(cross[0], 0).x, static_cast<float>(x), 0.01F);
    EXPECT_EQ(point(cross[0], 0).y, 30.0F);
    EXPECT_EQ(point(cross[0], 1).y, 340.0F);
    EXPECT_EQ(point(cross[1], 0).x, static_cast<float>(state().plotLeft) - 10.0F);
    EXPECT_EQ(point(cross[1], 1).x, 590.0F);
    EXPECT_NEAR(point(cross[1], 0).y, 190.0F, 0.01F);
    const GraphText* own = text("30.0/5.00");
    ASSERT_NE(own, nullptr);
    EXPECT_NEAR(own->place.x, static_cast<float>(x) + 5.0F, 0.01F);
    EXPECT_NEAR(own->place.y, 195.0F, 0.01F);
    const GraphText* value = text("3.00");
    ASSERT_NE(value, nullptr);
    EXPECT_NEAR(value->place.x, static_cast<float>(x) + 5.0F, 0.01F);
    EXPECT_NEAR(value->place.y, 40.0F + 90.0F, 0.1F);
    m_engine.releaseCursor();
    paint(1);
    EXPECT_EQ(text("3.00"), nullptr);
    EXPECT_EQ(lines(1.0F, 1.0F, 1.0F).size(), 2U);
}

TEST_F(GraphPaintTest, CursorOutsideOfThePlotHasNoLine)
{
    paint();
    m_engine.holdCursor(5, 345); // left of it and below it
    paint(1);
    EXPECT_TRUE(lines(1.0F, 1.0F, 1.0F).empty());
    m_engine.holdCursor(300, 345);
    paint(1);
    EXPECT_EQ(lines(1.0F, 1.0F, 1.0F).size(), 1U);
}

TEST_F(GraphPaintTest, CursorOffShowsNothingOfIt)
{
    paint();
    m_engine.holdCursor(300, 100);
    m_engine.setCursorOn(false);
    paint(1);
    EXPECT_TRUE(lines(1.0F, 1.0F, 1.0F).empty());
}

TEST_F(GraphPaintTest, CursorModeChangesNothing)
{
    paint();
    m_engine.holdCursor(300, 100);
    paint(1);
    const std::vector<std::string> before = texts();
    m_engine.setCursorMode(1);
    paint(1);
    EXPECT_EQ(texts(), before);
}

TEST_F(GraphPaintTest, FrameIsWhiteWithStripLinesInSplitMode)
{
    show(3);
    paint();
    ASSERT_EQ(items(GraphItem::Kind::LineLoop).size(), 1U);
    const GraphItem frame = items(GraphItem::Kind::LineLoop)[0];
    EXPECT_TRUE(isColor(frame.color, 1.0F, 1.0F, 1.0F));
    EXPECT_EQ(point(frame, 0).x, 44.0F);
    EXPECT_EQ(point(frame, 0).y, 40.0F);
    EXPECT_EQ(point(frame, 2).x, 590.0F);
    EXPECT_EQ(point(frame, 2).y, 340.0F);
    EXPECT_TRUE(lines(0.5F, 0.5F, 0.5F).empty());
    m_engine.setSplitMode(1);
    paint();
    const std::vector<GraphItem> strips = lines(0.5F, 0.5F, 0.5F);
    ASSERT_EQ(strips.size(), 3U);
    EXPECT_EQ(point(strips[0], 0).y, 40.0F);
    EXPECT_EQ(point(strips[1], 0).y, 140.0F);
    EXPECT_EQ(point(strips[2], 0).y, 240.0F);
    EXPECT_EQ(strips[0].size, 2.0F);
}

TEST_F(GraphPaintTest, LegendNamesVisibleChannelsBelowEachOther)
{
    m_engine.setParameterVisible(0, true);
    m_engine.setParameterVisible(3, true);
    m_engine.setParameterLabels(0, "Speed", "kt");
    m_engine.setAutoMode(0);
    addAt(1.0, 12.5);
    paint();
    const GraphText* first = text("Speed   12.500000 [kt]");
    const GraphText* second = text("NoName   0.000000 []");
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(first->place.x, 49.0F);
    EXPECT_EQ(first->place.y, 340.0F - 13.0F - 5.0F);
    EXPECT_EQ(second->place.y, first->place.y - 18.0F);
    m_engine.setSplitMode(1);
    paint();
    EXPECT_EQ(text("NoName   0.000000 []")->place.y, 340.0F - 18.0F - 150.0F);
    m_engine.setLegendOn(false);
    paint();
    EXPECT_EQ(text("NoName   0.000000 []"), nullptr);
}

} // namespace

} // namespace zul::test
