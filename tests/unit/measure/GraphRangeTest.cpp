#include "tests/unit/measure/GraphFixture.h"

#include <cmath>

// When columns are made anew, and what becomes of those of channels that are not visible.

namespace zul::test {

namespace {

class GraphRangeTest : public GraphTest
{
protected:
    /// A channel with a value each second from 1 to `last`, in manual mode over 0 to 60 s.
    void record(int last = 30)
    {
        show(1);
        m_engine.setAutoMode(0);
        paint();
        for (int time = 1; time <= last; ++time) {
            addAt(time, time);
        }
    }
    double firstColumn() const { return channel().columns.front().time; }
    double lastColumn() const { return channel().columns.back().time; }
};

TEST_F(GraphRangeTest, AnAskedForRebuildComesWithTheNextTime)
{
    record();
    m_engine.setRange(1.0F); // two columns: one of them behind the range
    EXPECT_EQ(channel().columns.size(), 1U);
    m_engine.setAutoMode(1);
    EXPECT_EQ(channel().columns.size(), 1U);
    m_engine.setCurrentTime(30.0); // now of 29 to 30 s, with one before
    EXPECT_EQ(firstColumn(), 28.0);
    EXPECT_EQ(lastColumn(), 30.0);
}

TEST_F(GraphRangeTest, KeysAskForARebuildToo)
{
    record();
    m_engine.setRange(1.0F);
    m_engine.setCurrentTime(30.0); // takes the first one, of the mode
    m_engine.resumeAutoMode();
    EXPECT_EQ(channel().columns.size(), 1U);
    m_engine.setCurrentTime(30.0);
    EXPECT_EQ(lastColumn(), 30.0);
}

TEST_F(GraphRangeTest, MarkerZoomMakesTheColumnsAnew)
{
    record();
    m_engine.markAt(static_cast<int>(state().plotLeft));
    m_engine.moveMarker(static_cast<int>(state().plotLeft + state().plotWidth / 6.0)); // 10 s
    m_engine.zoomMarker();
    EXPECT_EQ(firstColumn(), 1.0);
    EXPECT_NEAR(lastColumn(), 10.0, 1.0);
}

TEST_F(GraphRangeTest, PanMakesTheColumnsAnew)
{
    record();
    m_engine.startPan(400);
    m_engine.panTo(400 - static_cast<int>(state().plotWidth / 3.0)); // 20 s on
    EXPECT_NEAR(firstColumn(), 19.0, 1.0);
    EXPECT_EQ(lastColumn(), 30.0);
    m_engine.panTo(400);
    EXPECT_EQ(firstColumn(), 1.0);
}

TEST_F(GraphRangeTest, ResizeMakesTheColumnsAnew)
{
    record();
    m_engine.resizePicture(80, height);
    paint(1); // less than a pixel for each second
    EXPECT_LT(channel().columns.size(), 20U);
    m_engine.resizePicture(width, height);
    paint(1);
    EXPECT_EQ(channel().columns.size(), 30U);
}

TEST_F(GraphRangeTest, CrossedMarkerEndsAreExchangedAtRelease)
{
    // The nearer end alone moves, so that ends cross only where the middle of the band is beyond
    // all numbers: there, every time counts as left of it.
    paint();
    m_engine.setCurrentTime(1.5e308);
    m_engine.markAt(200);
    m_engine.setCurrentTime(1.7e308);
    m_engine.moveMarker(200);
    ASSERT_EQ(state().markerStart, 1.7e308);
    ASSERT_EQ(state().markerEnd, 1.5e308);
    m_engine.orderMarker();
    EXPECT_EQ(state().markerStart, 1.5e308);
    EXPECT_EQ(state().markerEnd, 1.7e308);
    m_engine.orderMarker(); // in order already
    EXPECT_EQ(state().markerStart, 1.5e308);
}

TEST_F(GraphRangeTest, AClockThatGoesBackLeavesNoOldTraceOfAHiddenChannel)
{
    show(1);
    paint();
    for (int time = 1; time <= 30; ++time) {
        addAt(time, time);
    }
    m_engine.setParameterVisible(0, false);
    addAt(10.0, 1.0);
    EXPECT_EQ(lastColumn(), 30.0); // not seen by anybody
    addAt(12.0, 2.0);
    m_engine.setParameterVisible(0, true);
    ASSERT_EQ(channel().columns.size(), 2U);
    EXPECT_EQ(firstColumn(), 10.0);
    EXPECT_EQ(lastColumn(), 12.0);
}

TEST_F(GraphRangeTest, OldColumnsDoNotComeBackOnceTheClockHasPassedThem)
{
    show(1);
    paint();
    addAt(20.0, 20.0);
    addAt(30.0, 30.0);
    m_engine.setParameterVisible(0, false);
    addAt(10.0, 1.0);
    addAt(40.0, 4.0);
    m_engine.setParameterVisible(0, true);
    ASSERT_EQ(channel().columns.size(), 2U);
    EXPECT_EQ(firstColumn(), 10.0);
    EXPECT_EQ(lastColumn(), 40.0);
    // From now on it is as any other: showing it makes nothing anew.
    m_engine.setParameterVisible(0, false);
    m_engine.setRange(5.0F);
    m_engine.setParameterVisible(0, true);
    EXPECT_EQ(firstColumn(), 10.0);
}

TEST_F(GraphRangeTest, ARangeOfValuesThatIsNoneIsStoredAndNotDrawn)
{
    show(1);
    m_engine.setSplitMode(1);
    m_engine.setParameterYMin(0, 0.0F);
    m_engine.setParameterYMax(0, NAN);
    EXPECT_TRUE(std::isnan(channel().userYMax));
    addAt(1.0, 1.0);
    addAt(2.0, 2.0);
    paint();
    EXPECT_TRUE(items(GraphItem::Kind::LineStrip).empty());
    EXPECT_TRUE(lines(1.0F, 0.0F, 0.0F).empty()); // no axis in the channel's colour
    m_engine.setParameterYMax(0, 10.0F);
    paint();
    EXPECT_EQ(items(GraphItem::Kind::LineStrip).size(), 1U);
}

} // namespace

} // namespace zul::test
