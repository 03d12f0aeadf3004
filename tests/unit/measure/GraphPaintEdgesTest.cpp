#include "tests/unit/measure/GraphFixture.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

// Pictures of what is hardly a picture: no channels, no room, numbers that are none.

namespace zul::test {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

class GraphPaintEdgesTest : public GraphTest
{
protected:
    /// Whether all points and texts stand where a picture can have them.
    void expectSane() const
    {
        constexpr float farthest = 1.1e6F;
        for (const GraphPoint& point : m_drawing.points()) {
            ASSERT_LE(std::abs(point.x), farthest); // false for what is no number
            ASSERT_LE(std::abs(point.y), farthest);
        }
        for (const GraphText& text : m_drawing.texts()) {
            ASSERT_LE(std::abs(text.place.x), farthest) << text.text;
            ASSERT_LE(std::abs(text.place.y), farthest) << text.text;
        }
        ASSERT_LT(m_drawing.items().size(), 3000U);
        ASSERT_TRUE(std::isfinite(state().plotWidth));
    }
};

TEST_F(GraphPaintEdgesTest, SplitModeWithoutVisibleChannelsIsFilledAndFramed)
{
    m_engine.setSplitMode(1);
    paint();
    expectSane();
    EXPECT_EQ(state().visibleCount, 0);
    EXPECT_EQ(items(GraphItem::Kind::LineLoop).size(), 1U);
    EXPECT_EQ(items(GraphItem::Kind::Polygon).size(), 2U); // plot and marker
    EXPECT_TRUE(lines(0.5F, 0.5F, 0.5F).empty());
}

TEST_F(GraphPaintEdgesTest, ANarrowPlotHasNoTimeTicksAndALowOneNoValueTicks)
{
    m_engine.resizePicture(44 + 10 + 69, 350);
    paint();
    EXPECT_EQ(text("0:00:00"), nullptr);
    EXPECT_NE(text("0.0"), nullptr);
    m_engine.resizePicture(600, 50 + 24);
    paint();
    EXPECT_NE(text("0:00:00"), nullptr);
    EXPECT_EQ(text("0.0"), nullptr);
    m_engine.resizePicture(600, 50 + 25);
    paint();
    EXPECT_NE(text("0.0"), nullptr);
}

TEST_F(GraphPaintEdgesTest, NoSizeIsTooSmall)
{
    show(6);
    for (const int side : {-5, 0, 1, 10, 49, 50, 51}) {
        for (const int mode : {0, 1}) {
            m_engine.setSplitMode(mode);
            m_engine.resizePicture(side, side);
            addAt(state().now + 1.0, 1.0);
            m_engine.holdCursor(side / 2, side / 2);
            paint(3);
            expectSane();
            for (const GraphItem& item : m_drawing.items()) {
                EXPECT_GE(item.scissor.width, 0);
                EXPECT_GE(item.scissor.height, 0);
            }
        }
    }
}

TEST_F(GraphPaintEdgesTest, NoTimeRangeIsTooShortOrTooLong)
{
    show(1);
    m_engine.setCurrentTime(1'000.0);
    for (const float seconds : {0.0F, -5.0F, 1e-30F, 1e-12F, 1e-9F, 1e-3F, 1e9F, 1e30F, 3e38F}) {
        m_engine.setAutoMode(1);
        m_engine.setRange(seconds);
        addAt(state().now + 0.05, 1.0);
        m_engine.markAt(200);
        m_engine.holdCursor(300, 100);
        m_engine.startPan(100);
        paint(3);
        expectSane();
        m_engine.panTo(110);
        paint(1);
        expectSane();
    }
}

TEST_F(GraphPaintEdgesTest, NoValueRangeIsTooSmallOrTooLarge)
{
    show(1);
    m_engine.setSplitMode(1);
    addAt(1.0, 0.0);
    addAt(2.0, 5.0);
    const float most = std::numeric_limits<float>::max();
    for (const auto& range : std::vector<std::pair<float, float>>{{0.0F, 0.0F},
                                                                  {5.0F, 5.0F},
                                                                  {10.0F, -10.0F},
                                                                  {0.0F, 1e-9F},
                                                                  {1e6F, 1e6F + 1.0F},
                                                                  {0.0F, 1e-44F},
                                                                  {0.0F, 1e30F},
                                                                  {-most, most},
                                                                  {NAN, 1.0F},
                                                                  {0.0F, INFINITY}}) {
        m_engine.setParameterYMin(0, range.first);
        m_engine.setParameterYMax(0, range.second);
        m_engine.holdCursor(300, 100);
        paint(3);
        expectSane();
        EXPECT_LE(state().labelWidth, 40 * FixedMetrics::letterWidth) << range.second;
    }
}

TEST_F(GraphPaintEdgesTest, AReversedValueRangeDrawsUpsideDown)
{
    show(1);
    m_engine.setSplitMode(1);
    m_engine.setAutoMode(0);
    m_engine.setParameterYMin(0, 10.0F);
    m_engine.setParameterYMax(0, 0.0F);
    paint();
    addAt(0.0, 10.0);
    addAt(30.0, 0.0);
    paint();
    const std::vector<GraphItem> strips = items(GraphItem::Kind::LineStrip);
    ASSERT_EQ(strips.size(), 1U);
    EXPECT_EQ(point(strips[0], 0).y, 40.0F);
    EXPECT_EQ(point(strips[0], 1).y, 340.0F);
}

TEST_F(GraphPaintEdgesTest, NumbersThatAreNoneLeaveAGap)
{
    show(1);
    m_engine.setSplitMode(1);
    m_engine.setAutoMode(0);
    m_engine.setParameterYMax(0, 10.0F);
    paint();
    int time = 0;
    for (const double value : {1.0, 2.0, noNumber, 3.0, 4.0, infinity, 5.0, -infinity, 6.0, 7.0}) {
        addAt(++time, value);
    }
    m_engine.setParameterShowSamples(0, true);
    paint();
    expectSane();
    const std::vector<GraphItem> strips = items(GraphItem::Kind::LineStrip);
    ASSERT_EQ(strips.size(), 3U); // 1 2, 3 4, 6 7; a single point is no line
    EXPECT_EQ(strips[0].count, 2U);
    ASSERT_EQ(items(GraphItem::Kind::Points).size(), 1U);
    EXPECT_EQ(items(GraphItem::Kind::Points)[0].count, 7U);
    EXPECT_EQ(channel().seenMin, 1.0);
    EXPECT_EQ(channel().seenMax, 7.0);
}

TEST_F(GraphPaintEdgesTest, AutoScaleSurvivesEveryValue)
{
    show(1);
    m_engine.setSplitMode(1);
    m_engine.setParameterAutoScale(0, true);
    double time = 0.0;
    for (const double value : {noNumber, infinity, 1e30, 1e-30, -1e300, 1e308, -1e308, 0.0}) {
        m_engine.clearAll();
        time += 0.5;
        addAt(time, value);
        time += 0.5;
        addAt(time, value);
        paint(3);
        expectSane();
    }
}

TEST_F(GraphPaintEdgesTest, AConstantThatIsTooLargeForItsMarginStillHasALine)
{
    show(1);
    m_engine.setSplitMode(1);
    m_engine.setParameterAutoScale(0, true);
    m_engine.setAutoMode(0);
    paint();
    addAt(1.0, 1e30);
    addAt(20.0, 1e30);
    paint(3);
    EXPECT_LT(channel().yMin, 1e30);
    EXPECT_GT(channel().yMax, 1e30);
    EXPECT_EQ(items(GraphItem::Kind::LineStrip).size(), 1U);
}

TEST_F(GraphPaintEdgesTest, TheListEndsOnePointBehindTheRightEdge)
{
    show(1);
    m_engine.setAutoMode(0);
    paint();
    for (int i = 0; i < 1000; ++i) {
        addAt(i, 1.0);
    }
    paint();
    EXPECT_EQ(channel().columns.size(), 1000U);
    EXPECT_EQ(items(GraphItem::Kind::LineStrip)[0].count, 62U);
}

TEST_F(GraphPaintEdgesTest, ThePointsDependOnThePixelsAlone)
{
    show(1);
    m_engine.setAutoMode(0);
    paint();
    for (int i = 0; i < 100'000; ++i) {
        addAt(i * 60.0 / 100'000, i % 7);
    }
    paint();
    EXPECT_LE(items(GraphItem::Kind::LineStrip)[0].count,
              4U * (static_cast<std::size_t>(state().plotWidth) + 2U));
}

TEST_F(GraphPaintEdgesTest, ACursorInAChannelThatIsGoneDoesNoHarm)
{
    m_engine.setParameterCount(16);
    m_engine.setSplitMode(1);
    m_engine.setParameterVisible(15, true);
    paint();
    m_engine.holdCursor(300, 100);
    EXPECT_EQ(state().cursorChannel, 15U);
    m_engine.setParameterCount(1);
    paint();
    expectSane();
}

} // namespace

} // namespace zul::test
