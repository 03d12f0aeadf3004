#include "measure/GraphEngine.h"

#include "tests/unit/measure/GraphFixture.h"
#include "tests/unit/profile/AllocationCount.h"

#include <gmock/gmock.h>
#include <limits>

namespace zul::test {

namespace {

using testing::DoubleEq;
using testing::Optional;

constexpr float floatNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

class GraphEngineTest : public GraphTest
{
};

/// Counts the requests for a new picture.
class CountingEngine : public GraphEngine
{
public:
    int repaints = 0;

protected:
    void requestRepaint() override { ++repaints; }
};

TEST(GraphEngineStart, HasItsDefaults)
{
    const GraphEngine engine;
    const GraphState& state = engine.state();
    EXPECT_EQ(state.channels.size(), 6U);
    EXPECT_EQ(state.now, 0.0);
    EXPECT_EQ(state.xMin, 0.0);
    EXPECT_EQ(state.xMax, 60.0);
    EXPECT_EQ(state.yMin, -0.5);
    EXPECT_EQ(state.yMax, 1.5);
    EXPECT_EQ(state.autoMode, 1);
    EXPECT_EQ(state.splitMode, 0);
    EXPECT_EQ(state.cursorMode, 0);
    EXPECT_EQ(state.visibleCount, 0);
    EXPECT_TRUE(isColor(state.plotColor, 0.0F, 0.0F, 0.0F));
    EXPECT_TRUE(isColor(state.gridColor, 1.0F, 0.3F, 0.3F));
    EXPECT_TRUE(isColor(state.labelColor, 0.0F, 0.0F, 0.0F));
    EXPECT_TRUE(isColor(state.backColor, 0.8F, 0.8F, 0.8F));
    EXPECT_TRUE(state.gridOn);
    EXPECT_TRUE(state.cursorOn);
    EXPECT_TRUE(state.legendOn);
    EXPECT_FALSE(state.running);
    EXPECT_FALSE(state.rebuildPending);
    EXPECT_FALSE(state.cursorShown);
}

TEST_F(GraphEngineTest, ChannelCountIsHeldToOneToThirty)
{
    m_engine.setParameterCount(0);
    EXPECT_EQ(state().channels.size(), 1U);
    m_engine.setParameterCount(30);
    EXPECT_EQ(state().channels.size(), 30U);
    m_engine.setParameterCount(31);
    EXPECT_EQ(state().channels.size(), 30U);
}

TEST_F(GraphEngineTest, NewChannelsHaveTheirColors)
{
    m_engine.setParameterCount(8);
    EXPECT_TRUE(isColor(channel(0).color, 1.0F, 0.0F, 0.0F));
    EXPECT_TRUE(isColor(channel(1).color, 0.0F, 1.0F, 0.0F));
    EXPECT_TRUE(isColor(channel(2).color, 0.0F, 0.0F, 1.0F));
    EXPECT_TRUE(isColor(channel(3).color, 1.0F, 1.0F, 0.0F));
    EXPECT_TRUE(isColor(channel(4).color, 0.0F, 1.0F, 1.0F));
    EXPECT_TRUE(isColor(channel(5).color, 1.0F, 0.0F, 1.0F));
    EXPECT_TRUE(isColor(channel(6).color, 1.0F, 1.0F, 1.0F));
}

TEST_F(GraphEngineTest, ChannelCountDiscardsEverything)
{
    addAt(1.0, 5.0);
    m_engine.setParameterLabels(0, "Speed", "kt");
    m_engine.setParameterCount(16);
    EXPECT_TRUE(channel().samples.empty());
    EXPECT_EQ(channel().name, "NoName");
}

TEST_F(GraphEngineTest, ValuesBeforeTheFirstTimeAreDropped)
{
    m_engine.addValue(0, 5.0);
    EXPECT_TRUE(channel().samples.empty());
    EXPECT_FALSE(state().running);
    m_engine.setCurrentTime(0.0);
    m_engine.addValue(0, 5.0);
    EXPECT_TRUE(state().running);
    ASSERT_EQ(channel().samples.size(), 1U);
}

TEST_F(GraphEngineTest, ASampleHasTheTimeThatWasSet)
{
    addAt(2.5, 7.0);
    EXPECT_EQ(channel().samples[0].time, 2.5);
    EXPECT_EQ(channel().samples[0].value, 7.0);
    EXPECT_EQ(channel().current, 7.0);
    EXPECT_TRUE(channel().fresh);
    m_engine.setCurrentTime(3.0);
    EXPECT_FALSE(channel().fresh);
}

TEST_F(GraphEngineTest, DataExtremesStartAnewWithTheFirstSample)
{
    addAt(1.0, 7.0);
    addAt(2.0, -3.0);
    addAt(3.0, 1.0);
    EXPECT_EQ(channel().dataMin, -3.0);
    EXPECT_EQ(channel().dataMax, 7.0);
    m_engine.clearAll();
    m_engine.addValue(0, 2.0);
    EXPECT_EQ(channel().dataMin, 2.0);
    EXPECT_EQ(channel().dataMax, 2.0);
}

TEST_F(GraphEngineTest, ATimeThatStepsBackEmptiesAllSamplesOfAllChannels)
{
    show(1);
    addAt(5.0, 1.0, 0);
    m_engine.addValue(3, 1.0);
    m_engine.setCurrentTime(4.999);
    EXPECT_TRUE(channel(0).samples.empty());
    EXPECT_TRUE(channel(3).samples.empty());
    EXPECT_TRUE(channel(0).columns.empty());
    EXPECT_EQ(channel(3).columns.size(), 1U); // an invisible channel keeps its columns
    EXPECT_EQ(state().now, 4.999);
}

TEST_F(GraphEngineTest, AnEqualTimeKeepsTheSamples)
{
    addAt(5.0, 1.0);
    m_engine.setCurrentTime(5.0);
    EXPECT_EQ(channel().samples.size(), 1U);
}

TEST_F(GraphEngineTest, ATimeThatIsNoNumberIsIgnored)
{
    addAt(5.0, 1.0);
    m_engine.setCurrentTime(noNumber);
    m_engine.setCurrentTime(std::numeric_limits<double>::infinity());
    EXPECT_EQ(state().now, 5.0);
    EXPECT_EQ(channel().samples.size(), 1U);
}

TEST_F(GraphEngineTest, InAutomaticModeTheRangeFollowsTheTime)
{
    m_engine.setCurrentTime(100.0);
    EXPECT_EQ(state().xMin, 40.0);
    EXPECT_EQ(state().xMax, 100.0);
    m_engine.setAutoMode(0);
    m_engine.setCurrentTime(200.0);
    EXPECT_EQ(state().xMax, 100.0);
}

TEST_F(GraphEngineTest, TheHundredThousandAndFirstSamplePushesOutTheFirst)
{
    show(1);
    paint();
    m_engine.setAutoMode(0);
    m_engine.setRange(60.0F);
    m_engine.setCurrentTime(0.0);
    for (std::size_t i = 0; i < GraphChannel::maxSamples; ++i) {
        m_engine.addValue(0, static_cast<double>(i));
    }
    EXPECT_EQ(channel().samples.size(), 100'000U);
    EXPECT_EQ(channel().samples.front().value, 0.0);
    m_engine.addValue(0, 7.0);
    EXPECT_EQ(channel().samples.size(), 100'000U);
    EXPECT_EQ(channel().samples.front().value, 1.0);
    // The column that was made of it stays until the columns are made anew.
    EXPECT_EQ(channel().columns.front().values[0], 0.0);
    m_engine.setRange(60.0F);
    EXPECT_EQ(channel().columns.front().values[0], 1.0);
}

TEST_F(GraphEngineTest, AddingAValueTakesNoMemoryBesidesTheQueues)
{
    show(1);
    paint();
    for (int i = 0; i < 200'000; ++i) {
        addAt(i * 0.05, i);
    }
    const std::uint64_t before = allocationCount();
    constexpr int values = 10'000;
    for (int i = 0; i < values; ++i) {
        m_engine.addValue(0, i);
    }
    // A block of the queue holds 32 samples; operator new, which calls malloc, may count twice.
    EXPECT_LE(allocationCount() - before, 2U * (values / 32U + 1U));
}

TEST_F(GraphEngineTest, RangeMovesTheLeftEdgeInAutomaticMode)
{
    m_engine.setCurrentTime(100.0);
    m_engine.setRange(10.0F);
    EXPECT_EQ(state().xMin, 90.0);
    EXPECT_EQ(state().xMax, 100.0);
}

TEST_F(GraphEngineTest, RangeMovesTheRightEdgeInManualMode)
{
    m_engine.setCurrentTime(100.0);
    m_engine.setAutoMode(0);
    m_engine.setRange(10.0F);
    EXPECT_EQ(state().xMin, 40.0);
    EXPECT_EQ(state().xMax, 50.0);
}

TEST_F(GraphEngineTest, ARangeThatIsNoNumberIsIgnored)
{
    m_engine.setRange(floatNoNumber);
    m_engine.setRange(std::numeric_limits<float>::infinity());
    EXPECT_EQ(state().xMin, 0.0);
    EXPECT_EQ(state().xMax, 60.0);
}

TEST_F(GraphEngineTest, ReturningToAutomaticModeRebuildsAtTheNextTime)
{
    show(1);
    paint();
    addAt(10.0, 1.0);
    addAt(20.0, 1.0);
    m_engine.setAutoMode(0);
    EXPECT_TRUE(state().rebuildPending);
    m_engine.setAutoMode(1);
    EXPECT_TRUE(state().rebuildPending);
    m_engine.setCurrentTime(30.0);
    EXPECT_FALSE(state().rebuildPending);
}

TEST_F(GraphEngineTest, InvisibleChannelsAreNotRebuilt)
{
    paint();
    addAt(10.0, 1.0);
    addAt(20.0, 2.0);
    addAt(30.0, 3.0);
    m_engine.setRange(5.0F);
    EXPECT_EQ(channel().columns.size(), 3U);
    show(1);
    m_engine.setRange(5.0F);
    EXPECT_EQ(channel().columns.size(), 2U);
}

TEST_F(GraphEngineTest, YMaxRebuildsColumnsAndYMinDoesNot)
{
    paint();
    addAt(10.0, 1.0);
    addAt(20.0, 2.0);
    addAt(30.0, 3.0);
    m_engine.setRange(5.0F);
    show(1);
    m_engine.setParameterYMin(0, -4.0F);
    EXPECT_EQ(channel().columns.size(), 3U);
    m_engine.setParameterYMax(0, 4.0F);
    EXPECT_EQ(channel().columns.size(), 2U);
    EXPECT_EQ(channel().userYMin, -4.0);
    EXPECT_EQ(channel().userYMax, 4.0);
}

TEST_F(GraphEngineTest, ChannelsThatAreNotThereAreIgnored)
{
    for (const std::uint32_t none : {6U, 30U, 0xFFFFFFFFU}) {
        m_engine.setCurrentTime(1.0);
        m_engine.addValue(none, 1.0);
        m_engine.setParameterVisible(none, true);
        m_engine.setParameterColor(none, 0.5F, 0.5F, 0.5F);
        m_engine.setParameterLabels(none, "a", "b");
        m_engine.setParameterShowSamples(none, true);
        m_engine.setParameterAutoScale(none, true);
        m_engine.setParameterYMin(none, 1.0F);
        m_engine.setParameterYMax(none, 1.0F);
        EXPECT_EQ(m_engine.valueAt(none, 1.0), std::nullopt);
    }
    EXPECT_EQ(state().channels.size(), 6U);
}

TEST(GraphEngineRepaints, ComeFromWhatIsSeenAtOnceAlone)
{
    CountingEngine engine;
    const auto repaintsOf = [&](auto operation) {
        const int before = engine.repaints;
        operation();
        return engine.repaints - before;
    };
    EXPECT_EQ(repaintsOf([&] { engine.setRange(5.0F); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setSplitMode(1); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setCursorMode(1); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setAutoMode(0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setGridOn(false); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setCursorOn(false); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setLegendOn(false); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setPlotColor(0, 0, 0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setGridColor(0, 0, 0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setLabelColor(0, 0, 0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setBackColor(0, 0, 0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterColor(0, 0, 0, 0); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterShowSamples(0, true); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterAutoScale(0, true); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterYMin(0, 1.0F); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterYMax(0, 1.0F); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.zoomMarker(); }), 1);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterVisible(0, true); }), 0);
    EXPECT_EQ(repaintsOf([&] { engine.setParameterLabels(0, "a", "b"); }), 0);
    EXPECT_EQ(repaintsOf([&] { engine.setCurrentTime(1.0); }), 0);
    EXPECT_EQ(repaintsOf([&] { engine.addValue(0, 1.0); }), 0);
}

TEST_F(GraphEngineTest, SettersStore)
{
    m_engine.setSplitMode(1);
    m_engine.setCursorMode(1);
    m_engine.setGridOn(false);
    m_engine.setCursorOn(false);
    m_engine.setLegendOn(false);
    m_engine.setPlotColor(0.1F, 0.2F, 0.3F);
    m_engine.setGridColor(0.2F, 0.2F, 0.3F);
    m_engine.setLabelColor(0.3F, 0.2F, 0.3F);
    m_engine.setBackColor(0.4F, 0.2F, 0.3F);
    m_engine.setParameterVisible(0, true);
    m_engine.setParameterColor(0, 0.5F, 0.2F, 0.3F);
    m_engine.setParameterLabels(0, "Speed", "kt");
    m_engine.setParameterShowSamples(0, true);
    m_engine.setParameterAutoScale(0, true);
    EXPECT_EQ(state().splitMode, 1);
    EXPECT_EQ(state().cursorMode, 1);
    EXPECT_FALSE(state().gridOn);
    EXPECT_FALSE(state().cursorOn);
    EXPECT_FALSE(state().legendOn);
    EXPECT_TRUE(isColor(state().plotColor, 0.1F, 0.2F, 0.3F));
    EXPECT_TRUE(isColor(state().gridColor, 0.2F, 0.2F, 0.3F));
    EXPECT_TRUE(isColor(state().labelColor, 0.3F, 0.2F, 0.3F));
    EXPECT_TRUE(isColor(state().backColor, 0.4F, 0.2F, 0.3F));
    EXPECT_TRUE(channel().visible);
    EXPECT_TRUE(isColor(channel().color, 0.5F, 0.2F, 0.3F));
    EXPECT_EQ(channel().name, "Speed");
    EXPECT_EQ(channel().unit, "kt");
    EXPECT_TRUE(channel().showSamples);
    EXPECT_TRUE(channel().autoScale);
}

TEST_F(GraphEngineTest, ClearAllGoesBackToTheFirstRangeAndGoesOnRecording)
{
    show(1);
    paint();
    m_engine.markAt(200);
    addAt(100.0, 1.0);
    m_engine.addValue(4, 1.0);
    paint();
    m_engine.setAutoMode(0);
    m_engine.clearAll();
    EXPECT_TRUE(channel(0).samples.empty());
    EXPECT_TRUE(channel(0).columns.empty());
    EXPECT_TRUE(channel(4).columns.empty());
    EXPECT_FALSE(channel(0).fresh);
    EXPECT_EQ(state().xMin, 0.0);
    EXPECT_EQ(state().xMax, 60.0);
    EXPECT_EQ(state().yMin, -0.5);
    EXPECT_EQ(state().yMax, 1.5);
    EXPECT_EQ(state().markerStart, 0.0);
    EXPECT_EQ(state().markerEnd, 0.0);
    EXPECT_EQ(state().dataStart, 0.0);
    EXPECT_EQ(state().dataEnd, 0.0);
    EXPECT_EQ(state().autoMode, 0);
    EXPECT_TRUE(state().running);
    EXPECT_EQ(state().now, 100.0);
    m_engine.addValue(0, 2.0);
    EXPECT_EQ(channel(0).samples.size(), 1U);
}

TEST_F(GraphEngineTest, MarkerZoomOpensOneSecondAtLeast)
{
    paint();
    m_engine.markAt(200);
    const double marked = state().markerStart;
    m_engine.zoomMarker();
    EXPECT_EQ(state().xMin, marked);
    EXPECT_EQ(state().xMax, marked + 1.0);
    EXPECT_EQ(state().autoMode, 0);
}

TEST_F(GraphEngineTest, MarkerZoomShowsTheMarkedTime)
{
    paint();
    m_engine.markAt(200);
    m_engine.moveMarker(400);
    const double start = state().markerStart;
    const double end = state().markerEnd;
    m_engine.zoomMarker();
    EXPECT_EQ(state().xMin, start);
    EXPECT_EQ(state().xMax, end);
}

TEST_F(GraphEngineTest, MarkerZoomOfACrossedBandOpensOneSecond)
{
    paint();
    m_engine.markAt(400);
    m_engine.moveMarker(300);
    m_engine.moveMarker(350); // right of the middle: moves the end
    m_engine.zoomMarker();
    EXPECT_GE(state().xMax - state().xMin, 1.0);
}

TEST_F(GraphEngineTest, ValueAtIsThatOfTheSamples)
{
    addAt(1.0, 10.0, 2);
    addAt(2.0, 20.0, 2);
    EXPECT_THAT(m_engine.valueAt(2, 1.5), Optional(DoubleEq(15.0)));
    EXPECT_EQ(m_engine.valueAt(1, 1.5), std::nullopt);
}

TEST_F(GraphEngineTest, MouseMarksBothEndsAndMovesTheNearerOne)
{
    paint();
    const auto timeOf = [this](int x) {
        return (x - state().plotLeft) / state().plotWidth * 60.0 + state().xMin;
    };
    m_engine.markAt(300);
    EXPECT_DOUBLE_EQ(state().markerStart, timeOf(300));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeOf(300));
    m_engine.moveMarker(400);
    EXPECT_DOUBLE_EQ(state().markerStart, timeOf(300));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeOf(400));
    m_engine.moveMarker(340); // left of the middle
    EXPECT_DOUBLE_EQ(state().markerStart, timeOf(340));
    EXPECT_DOUBLE_EQ(state().markerEnd, timeOf(400));
}

TEST_F(GraphEngineTest, ReleasePutsTheMarkerInOrder)
{
    paint();
    m_engine.markAt(400);
    m_engine.moveMarker(500);
    m_engine.moveMarker(300);
    m_engine.orderMarker();
    EXPECT_LE(state().markerStart, state().markerEnd);
}

TEST_F(GraphEngineTest, CursorHasTimeAndValueOfThePointer)
{
    paint();
    m_engine.holdCursor(static_cast<int>(state().plotLeft), 10); // the top of the plot
    EXPECT_TRUE(state().cursorShown);
    EXPECT_DOUBLE_EQ(state().cursorX, 0.0);
    EXPECT_DOUBLE_EQ(state().cursorY, 1.5);
    m_engine.holdCursor(width - 10, 310); // the bottom right
    EXPECT_DOUBLE_EQ(state().cursorX, 60.0);
    EXPECT_DOUBLE_EQ(state().cursorY, -0.5);
    m_engine.releaseCursor();
    EXPECT_FALSE(state().cursorShown);
    EXPECT_DOUBLE_EQ(state().cursorX, 60.0);
}

TEST_F(GraphEngineTest, CursorInSplitModeIsInTheStripUnderThePointer)
{
    m_engine.setSplitMode(1);
    m_engine.setParameterVisible(1, true);
    m_engine.setParameterVisible(2, true);
    m_engine.setParameterVisible(4, true);
    for (const std::uint32_t i : {1U, 2U, 4U}) {
        m_engine.setParameterYMin(i, 0.0F);
        m_engine.setParameterYMax(i, 10.0F);
    }
    paint();
    // Strips of 100 pixels; the first channel lies on top, from 10 to 110.
    m_engine.holdCursor(200, 60);
    EXPECT_EQ(state().cursorChannel, 1U);
    EXPECT_DOUBLE_EQ(state().cursorY, 5.0);
    m_engine.holdCursor(200, 111);
    EXPECT_EQ(state().cursorChannel, 2U);
    EXPECT_DOUBLE_EQ(state().cursorY, 9.9);
    m_engine.holdCursor(200, 300);
    EXPECT_EQ(state().cursorChannel, 4U);
    EXPECT_DOUBLE_EQ(state().cursorY, 1.0);
    m_engine.holdCursor(200, 345); // below the plot
    EXPECT_EQ(state().cursorChannel, 0U);
}

TEST_F(GraphEngineTest, CursorInSplitModeWithoutChannelsIsInTheFirst)
{
    m_engine.setSplitMode(1);
    paint();
    m_engine.holdCursor(200, 60);
    EXPECT_EQ(state().cursorChannel, 0U);
    EXPECT_FALSE(std::isnan(state().cursorY));
}

TEST_F(GraphEngineTest, PanMovesTheRangeWithTheMouse)
{
    paint();
    m_engine.startPan(300);
    m_engine.panTo(250);
    const double seconds = 50.0 * 60.0 / state().plotWidth;
    EXPECT_DOUBLE_EQ(state().xMin, seconds);
    EXPECT_DOUBLE_EQ(state().xMax, 60.0 + seconds);
    EXPECT_EQ(state().autoMode, 0);
    m_engine.panTo(300);
    EXPECT_DOUBLE_EQ(state().xMin, 0.0);
}

TEST_F(GraphEngineTest, MouseWithoutAPlotDoesNoHarm)
{
    m_engine.markAt(100);
    m_engine.moveMarker(100);
    m_engine.holdCursor(100, 100);
    m_engine.startPan(100);
    m_engine.panTo(200);
    EXPECT_EQ(state().markerStart, 0.0);
    EXPECT_EQ(state().cursorX, 0.0);
    EXPECT_EQ(state().xMin, 0.0);
    EXPECT_EQ(state().xMax, 60.0);
}

TEST_F(GraphEngineTest, ResetIsAutomaticAndSingle)
{
    m_engine.setSplitMode(1);
    m_engine.setAutoMode(0);
    m_engine.setCurrentTime(100.0);
    m_engine.reset();
    EXPECT_EQ(state().autoMode, 1);
    EXPECT_EQ(state().splitMode, 0);
    EXPECT_TRUE(state().rebuildPending);
    EXPECT_EQ(state().xMax, 60.0);
}

TEST_F(GraphEngineTest, SamplesOfAHiddenPictureAreThinnedOnceItIsSeen)
{
    show(1);
    for (int i = 0; i < 100; ++i) {
        addAt(i * 0.5, i);
    }
    EXPECT_EQ(channel().columns.size(), 1U);
    paint();
    EXPECT_GT(channel().columns.size(), 50U);
}

} // namespace

} // namespace zul::test
