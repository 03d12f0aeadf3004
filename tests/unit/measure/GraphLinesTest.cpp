#include "measure/GraphSegment.h"
#include "tests/unit/measure/GraphFixture.h"

#include <cmath>
#include <limits>

// Lines that leave the plot, and where the lines of axes and strips end.

namespace zul::test {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(CutSegment, LeavesWhatIsNear)
{
    GraphPlace from{-10.0, 5.0};
    GraphPlace to{200.0, -7.0};
    EXPECT_TRUE(cutSegment(from, to));
    EXPECT_EQ(from.x, -10.0);
    EXPECT_EQ(from.y, 5.0);
    EXPECT_EQ(to.x, 200.0);
    EXPECT_EQ(to.y, -7.0);
}

TEST(CutSegment, KeepsTheSlope)
{
    for (const double far : {1e6, 1e9, 1e15}) {
        for (const double sign : {1.0, -1.0}) {
            GraphPlace from{100.0, 50.0};
            GraphPlace to{100.0 + far, 50.0 + sign * far / 2.0};
            ASSERT_TRUE(cutSegment(from, to));
            EXPECT_EQ(from.x, 100.0);
            EXPECT_EQ(to.x, farthestPixel);
            EXPECT_NEAR(to.y, 50.0 + sign * (farthestPixel - 100.0) / 2.0, 1e-6);
            GraphPlace backFrom{100.0 + far, 50.0 + sign * far / 2.0};
            GraphPlace backTo{100.0, 50.0};
            ASSERT_TRUE(cutSegment(backFrom, backTo));
            EXPECT_EQ(backFrom.x, to.x);
            EXPECT_EQ(backFrom.y, to.y);
        }
    }
}

TEST(CutSegment, CutsBothEnds)
{
    GraphPlace from{-1e7, -1e7};
    GraphPlace to{1e9, 1e9};
    ASSERT_TRUE(cutSegment(from, to));
    EXPECT_NEAR(from.x, -farthestPixel, 1e-6);
    EXPECT_NEAR(from.y, -farthestPixel, 1e-6);
    EXPECT_NEAR(to.x, farthestPixel, 1e-6);
    EXPECT_NEAR(to.y, farthestPixel, 1e-6);
}

TEST(CutSegment, LeavesNothingOfALineThatPassesBy)
{
    for (const auto& [x1, y1, x2, y2] :
         std::vector<std::array<double, 4>>{{0.0, 1e6, 100.0, 2e6},  // above
                                            {-1e6, 0.0, -2e6, 50.0}, // at the left
                                            {-3e5, 0.0, 0.0, 3e5},   // past a corner
                                            {-1e100, 1e100, 0, 1e99}}) {
        GraphPlace from{x1, y1};
        GraphPlace to{x2, y2};
        EXPECT_FALSE(cutSegment(from, to)) << x1 << ' ' << y1;
    }
}

class GraphLinesTest : public GraphTest
{
protected:
    /// One channel of the range 0 to 10 in a strip of 300 pixels, in manual mode over 60 s.
    void showStrip()
    {
        show(1);
        m_engine.setSplitMode(1);
        m_engine.setParameterYMax(0, 10.0F);
        m_engine.setAutoMode(0);
        paint();
    }
    std::vector<GraphPoint> trace() const
    {
        std::vector<GraphPoint> found;
        for (const GraphItem& strip : items(GraphItem::Kind::LineStrip)) {
            for (std::size_t i = 0; i < strip.count; ++i) {
                found.push_back(point(strip, i));
            }
        }
        return found;
    }
    /// Where the line from one point to the next is at a height.
    static double xAt(const GraphPoint& from, const GraphPoint& to, double y)
    {
        return from.x + (y - from.y) / (to.y - from.y) * (to.x - from.x);
    }
};

TEST_F(GraphLinesTest, ASteepLineKeepsItsSlope)
{
    showStrip();
    addAt(0.0, 0.0);
    addAt(60.0, 1e6); // 3e7 pixels above the first one
    paint(1);
    const std::vector<GraphPoint> points = trace();
    ASSERT_EQ(points.size(), 2U);
    const double atTop = state().plotLeft + state().plotWidth * 10.0 / 1e6;
    EXPECT_NEAR(xAt(points[0], points[1], 340.0), atTop, 1e-3);
    EXPECT_LE(points[1].y, static_cast<float>(farthestPixel));
    // The true line is at the bound after a three hundredth of the width.
    EXPECT_NEAR(points[1].x, state().plotLeft + state().plotWidth * (1e5 - 40.0) / 3e7, 0.02);
}

TEST_F(GraphLinesTest, ALineFromFarLeftKeepsItsSlope)
{
    showStrip();
    addAt(0.0, 0.0);
    addAt(1'000.0, 0.0);
    addAt(2'000.0, 10.0);
    m_engine.setRange(0.002F); // the line is more than a hundred million pixels long
    for (int i = 0; i < 4; ++i) {
        m_engine.startPan(0);
        m_engine.panTo(-static_cast<int>(375.0 / (0.002 / state().plotWidth)));
    }
    ASSERT_NEAR(state().xMin, 1'500.0, 0.01);
    paint(1);
    const std::vector<GraphPoint> points = trace();
    ASSERT_EQ(points.size(), 2U);
    EXPECT_EQ(points[0].x, static_cast<float>(-farthestPixel));
    EXPECT_EQ(points[1].x, static_cast<float>(farthestPixel));
    EXPECT_NEAR(points[0].y, 190.0, 0.2);
    EXPECT_NEAR(points[1].y, 190.0, 0.2);
}

TEST_F(GraphLinesTest, ALineThatGoesOutAndComesBackHasItsVisiblePartsAlone)
{
    showStrip();
    addAt(10.0, 5.0);
    addAt(20.0, 1e7);
    addAt(30.0, 2e7);
    addAt(40.0, -1e7);
    addAt(50.0, 5.0);
    paint(1);
    const std::vector<GraphPoint> points = trace();
    // Up and out; down through the plot; up into it.
    ASSERT_EQ(points.size(), 6U);
    EXPECT_EQ(points[1].y, static_cast<float>(farthestPixel));
    EXPECT_EQ(points[2].y, static_cast<float>(farthestPixel));
    EXPECT_EQ(points[3].y, static_cast<float>(-farthestPixel));
    EXPECT_EQ(points[4].y, static_cast<float>(-farthestPixel));
    const double crossing = state().plotLeft + state().plotWidth * (30.0 + 20.0 / 3.0) / 60.0;
    EXPECT_NEAR(xAt(points[2], points[3], 190.0), crossing, 0.05);
}

TEST_F(GraphLinesTest, ValuesBeyondAllPixelsDoNoHarm)
{
    showStrip();
    addAt(10.0, 5.0);
    addAt(20.0, 1e308);
    addAt(30.0, -1e308);
    addAt(40.0, 5.0);
    addAt(45.0, infinity);
    addAt(50.0, 5.0);
    paint(1);
    for (const GraphPoint& point : trace()) {
        EXPECT_LE(std::fabs(point.x), static_cast<float>(farthestPixel));
        EXPECT_LE(std::fabs(point.y), static_cast<float>(farthestPixel));
    }
    EXPECT_EQ(items(GraphItem::Kind::LineStrip).size(), 1U);
}

TEST_F(GraphLinesTest, ALinePointAloneHasADotButNoLine)
{
    showStrip();
    m_engine.setParameterShowSamples(0, true);
    addAt(10.0, 5.0);
    addAt(20.0, infinity);
    paint(1);
    EXPECT_TRUE(items(GraphItem::Kind::LineStrip).empty());
    ASSERT_EQ(items(GraphItem::Kind::Points).size(), 1U);
    EXPECT_EQ(items(GraphItem::Kind::Points)[0].count, 1U);
}

TEST_F(GraphLinesTest, MinorTicksOfTheValueAxisAreFivePixelsLong)
{
    m_engine.setLabelColor(0.0F, 0.0F, 1.0F);
    paint();
    // From -0.5 to 1.5 in steps of 0.2: ten labels, and parts of five between them.
    std::size_t minor = 0;
    bool hasFirst = false;
    for (const GraphItem& line : lines(0.0F, 0.0F, 1.0F)) {
        if (point(line, 0).y != point(line, 1).y) {
            continue; // the time axis
        }
        EXPECT_EQ(point(line, 1).x, 44.0F);
        if (point(line, 0).x == 39.0F) {
            ++minor;
            EXPECT_GE(point(line, 0).y, 40.0F - 1e-3F);
            EXPECT_LE(point(line, 0).y, 340.0F + 1e-3F);
            hasFirst = hasFirst || std::fabs(point(line, 0).y - (40.0F + 150.0F * 0.55F)) < 1e-3F;
        }
    }
    // Steps of 0.05: 41 places in the range, ten of which have labels.
    EXPECT_EQ(minor, 31U);
    EXPECT_TRUE(hasFirst); // 0.05
}

TEST_F(GraphLinesTest, GridLinesGoFromSideToSide)
{
    paint();
    std::size_t across = 0;
    std::size_t upright = 0;
    for (const GraphItem& line : lines(1.0F, 0.3F, 0.3F, true)) {
        if (point(line, 0).y == point(line, 1).y) {
            ++across;
            EXPECT_EQ(point(line, 0).x, 44.0F);
            EXPECT_EQ(point(line, 1).x, 590.0F);
        } else {
            ++upright;
            EXPECT_EQ(point(line, 0).x, point(line, 1).x);
            EXPECT_EQ(point(line, 0).y, 40.0F);
            EXPECT_EQ(point(line, 1).y, 340.0F);
        }
    }
    EXPECT_EQ(across, 10U); // -0.4 to 1.4
    EXPECT_EQ(upright, 7U); // 0 to 60 s
}

TEST_F(GraphLinesTest, StripLinesGoFromSideToSide)
{
    show(3);
    m_engine.setSplitMode(1);
    paint();
    const std::vector<GraphItem> strips = lines(0.5F, 0.5F, 0.5F);
    ASSERT_EQ(strips.size(), 3U);
    for (const GraphItem& strip : strips) {
        EXPECT_EQ(point(strip, 0).x, static_cast<float>(state().plotLeft));
        EXPECT_EQ(point(strip, 1).x, static_cast<float>(state().plotLeft + state().plotWidth));
        EXPECT_EQ(point(strip, 0).y, point(strip, 1).y);
    }
}

TEST_F(GraphLinesTest, CursorOfSeveralStripsHasEachValueInItsOwnStrip)
{
    show(3);
    m_engine.setSplitMode(1);
    m_engine.setAutoMode(0);
    for (const std::uint32_t i : {0U, 1U, 2U}) {
        m_engine.setParameterYMax(i, 10.0F * static_cast<float>(i + 1));
    }
    paint();
    for (const double time : {0.0, 60.0}) {
        m_engine.setCurrentTime(time);
        for (const std::uint32_t i : {0U, 1U, 2U}) {
            m_engine.addValue(i, 5.0 + i);
        }
    }
    paint();
    const int x = static_cast<int>(state().plotLeft + state().plotWidth / 2.0);
    m_engine.holdCursor(x, 160); // in the middle of the strip in the middle, of 0 to 20
    EXPECT_EQ(state().cursorChannel, 1U);
    paint(1);
    const std::vector<GraphItem> cross = lines(1.0F, 1.0F, 1.0F);
    ASSERT_EQ(cross.size(), 2U);
    EXPECT_NEAR(point(cross[1], 0).y, 190.0F, 0.01F);
    ASSERT_NE(text("30.0/10.00"), nullptr);
    // Strips of 100 pixels from 240, 140 and 40 up; 5 of 10, 6 of 20, 7 of 30.
    for (const auto& [label, y] :
         {std::pair{"5.00", 290.0F}, std::pair{"6.00", 170.0F}, std::pair{"7.00", 63.33F}}) {
        ASSERT_NE(text(label), nullptr) << label;
        EXPECT_NEAR(text(label)->place.y, y, 0.01F) << label;
        EXPECT_NEAR(text(label)->place.x, static_cast<float>(x) + 5.0F, 0.01F) << label;
    }
}

} // namespace

} // namespace zul::test
