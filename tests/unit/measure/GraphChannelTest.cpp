#include "measure/GraphColumns.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <random>

namespace {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::Optional;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

GraphChannel channelOf(std::initializer_list<GraphSample> samples)
{
    GraphChannel channel;
    channel.samples = samples;
    return channel;
}

std::vector<double> times(const GraphChannel& channel)
{
    std::vector<double> found;
    for (const GraphColumn& column : channel.columns) {
        found.push_back(column.time);
    }
    return found;
}

void addAll(GraphChannel& channel, std::initializer_list<double> values)
{
    for (const double value : values) {
        addToColumns(channel, {1.0, value}, 0.5, 0.0);
    }
}

TEST(GraphChannel, StartsWithItsDefaults)
{
    const GraphChannel channel;
    EXPECT_EQ(channel.name, "NoName");
    EXPECT_EQ(channel.unit, "");
    EXPECT_EQ(channel.color.red, 1.0F);
    EXPECT_EQ(channel.color.green, 1.0F);
    EXPECT_EQ(channel.color.blue, 1.0F);
    EXPECT_FALSE(channel.visible);
    EXPECT_FALSE(channel.fresh);
    EXPECT_FALSE(channel.showSamples);
    EXPECT_FALSE(channel.autoScale);
    for (const double number : {channel.current, channel.seenMin, channel.seenMax, channel.yMin,
                                channel.yMax, channel.userYMin, channel.userYMax, channel.dataMin,
                                channel.dataMax, channel.bandBottom, channel.bandHeight}) {
        EXPECT_EQ(number, 0.0);
    }
}

TEST(GraphColumn, FillsItsSlotsInTheOrderOfTheValues)
{
    GraphChannel channel;
    addAll(channel, {5.0});
    ASSERT_EQ(channel.columns.size(), 1U);
    EXPECT_EQ(channel.columns[0].count, 1U);
    EXPECT_EQ(channel.columns[0].time, 1.0);
    addAll(channel, {9.0});
    EXPECT_EQ(channel.columns[0].count, 2U);
    addAll(channel, {2.0});
    EXPECT_EQ(channel.columns[0].count, 3U);
    EXPECT_THAT(channel.columns[0].values, ElementsAre(5.0, 9.0, 2.0, 0.0));
}

TEST(GraphColumn, KeepsFirstExtremesAndLastOfABurst)
{
    GraphChannel channel;
    addAll(channel, {5.0, 3.0, 6.0, 4.0});
    EXPECT_EQ(channel.columns[0].count, 4U);
    EXPECT_THAT(channel.columns[0].values, ElementsAre(5.0, 3.0, 6.0, 4.0));
    addAll(channel, {1.0, 9.0, 7.0});
    EXPECT_EQ(channel.columns.size(), 1U);
    EXPECT_EQ(channel.columns[0].count, 4U);
    EXPECT_THAT(channel.columns[0].values, ElementsAre(5.0, 1.0, 9.0, 7.0));
}

TEST(GraphColumn, TakesTheFourthValueIntoBothExtremesWhereTheyCrossed)
{
    GraphChannel channel;
    addAll(channel, {5.0, 9.0, 2.0, 4.0});
    EXPECT_THAT(channel.columns[0].values, ElementsAre(5.0, 4.0, 4.0, 4.0));
}

TEST(GraphColumns, BeginWithASampleFartherThanAPixel)
{
    GraphChannel channel;
    for (const double time : {1.0, 1.5, 1.75, 2.0}) {
        addToColumns(channel, {time, 0.0}, 0.5, 0.0);
    }
    EXPECT_THAT(times(channel), ElementsAre(1.0, 1.75));
    EXPECT_EQ(channel.columns[0].count, 2U);
}

TEST(GraphColumns, OfAnInfinitePixelAreOne)
{
    GraphChannel channel;
    for (const double time : {0.0, 1e6, 1e12}) {
        addToColumns(channel, {time, 0.0}, infinity, 0.0);
    }
    EXPECT_EQ(channel.columns.size(), 1U);
}

TEST(RebuildColumns, TakesOneSampleBeforeTheRangeAndOneBehindIt)
{
    GraphChannel channel = channelOf({{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}});
    rebuildColumns(channel, 3.0, 4.5, 0.1);
    EXPECT_THAT(times(channel), ElementsAre(2.0, 3.0, 4.0, 5.0));
}

TEST(RebuildColumns, LeavesTheFirstSampleOutIfTheSecondIsTheFirstInTheRange)
{
    GraphChannel channel = channelOf({{0, 0}, {1, 1}, {2, 2}});
    rebuildColumns(channel, 0.5, 9.0, 0.1);
    EXPECT_THAT(times(channel), ElementsAre(1.0, 2.0));
}

TEST(RebuildColumns, OfARangeBehindAllSamplesKeepsTheLast)
{
    GraphChannel channel = channelOf({{0, 0}, {1, 1}, {2, 2}});
    rebuildColumns(channel, 5.0, 9.0, 0.1);
    EXPECT_THAT(times(channel), ElementsAre(2.0));
    GraphChannel single = channelOf({{0, 0}});
    rebuildColumns(single, 5.0, 9.0, 0.1);
    EXPECT_TRUE(single.columns.empty());
}

TEST(RebuildColumns, StopsAfterASampleOnTheRightEdge)
{
    GraphChannel channel = channelOf({{0, 0}, {1, 1}, {2, 2}, {3, 3}});
    rebuildColumns(channel, 0.0, 2.0, 0.1);
    EXPECT_THAT(times(channel), ElementsAre(0.0, 1.0, 2.0));
}

TEST(RebuildColumns, ForgetsTheOldOnes)
{
    GraphChannel channel;
    addAll(channel, {1.0, 2.0});
    rebuildColumns(channel, 0.0, 2.0, 0.1);
    EXPECT_TRUE(channel.columns.empty());
}

TEST(TrimColumns, LeavesOneLeftOfTheWindow)
{
    GraphChannel channel = channelOf({{0, 0}, {1, 1}, {2, 2}, {3, 3}});
    rebuildColumns(channel, 0.0, 9.0, 0.1);
    trimColumns(channel, 2.0);
    EXPECT_THAT(times(channel), ElementsAre(1.0, 2.0, 3.0));
    trimColumns(channel, 2.5);
    EXPECT_THAT(times(channel), ElementsAre(2.0, 3.0));
    trimColumns(channel, 100.0);
    EXPECT_THAT(times(channel), ElementsAre(3.0));
}

TEST(SeenValues, AreTheExtremesOfAllSlots)
{
    GraphChannel channel;
    channel.seenMin = -100.0;
    channel.seenMax = 100.0;
    addToColumns(channel, {1.0, 5.0}, 0.5, 0.0);
    addToColumns(channel, {1.1, -2.0}, 0.5, 0.0);
    addToColumns(channel, {2.0, 7.0}, 0.5, 0.0);
    updateSeen(channel);
    EXPECT_EQ(channel.seenMin, -2.0);
    EXPECT_EQ(channel.seenMax, 7.0);
}

TEST(SeenValues, StayWithoutColumnsAndWithoutNumbers)
{
    GraphChannel channel;
    channel.seenMin = 3.0;
    channel.seenMax = 4.0;
    updateSeen(channel);
    addToColumns(channel, {1.0, noNumber}, 0.5, 0.0);
    addToColumns(channel, {2.0, infinity}, 0.5, 0.0);
    updateSeen(channel);
    EXPECT_EQ(channel.seenMin, 3.0);
    EXPECT_EQ(channel.seenMax, 4.0);
    addToColumns(channel, {3.0, 8.0}, 0.5, 0.0);
    updateSeen(channel);
    EXPECT_EQ(channel.seenMin, 8.0);
    EXPECT_EQ(channel.seenMax, 8.0);
}

TEST(SeenValues, FollowWhatIsTrimmedAndWhatJoinsTheLastColumn)
{
    std::mt19937 random(7); // seed 7
    std::uniform_real_distribution<double> value(-50.0, 50.0);
    GraphChannel channel;
    double time = 0.0;
    for (int turn = 0; turn < 500; ++turn) {
        for (int i = 0; i < 5; ++i) {
            time += 0.03;
            addToColumns(channel, {time, value(random)}, 0.1, time - 3.0);
        }
        trimColumns(channel, time - 3.0);
        updateSeen(channel);
        double lowest = infinity;
        double highest = -infinity;
        for (const GraphColumn& column : channel.columns) {
            for (std::uint32_t i = 0; i < column.count; ++i) {
                lowest = std::min(lowest, column.values[i]);
                highest = std::max(highest, column.values[i]);
            }
        }
        ASSERT_EQ(channel.seenMin, lowest) << turn;
        ASSERT_EQ(channel.seenMax, highest) << turn;
    }
}

TEST(GraphColumns, BeyondTheirNumberCostOneLeftOfTheWindow)
{
    GraphChannel channel;
    double time = 0.0;
    for (std::size_t i = 0; i < GraphChannel::maxColumns; ++i) {
        addToColumns(channel, {time++, 0.0}, 0.5, 0.0);
    }
    addToColumns(channel, {time++, 1.0}, 0.5, 50.0);
    EXPECT_EQ(channel.columns.size(), GraphChannel::maxColumns);
    EXPECT_EQ(channel.columns.front().time, 1.0);
    EXPECT_EQ(channel.columns.back().values[0], 1.0);
}

TEST(GraphColumns, BeyondTheirNumberJoinTheLastOneIfNoneIsLeftOfTheWindow)
{
    GraphChannel channel;
    double time = 0.0;
    for (std::size_t i = 0; i < GraphChannel::maxColumns + 10; ++i) {
        addToColumns(channel, {time++, 0.0}, 0.5, 0.0);
    }
    EXPECT_EQ(channel.columns.size(), GraphChannel::maxColumns);
    EXPECT_EQ(channel.columns.front().time, 0.0);
    EXPECT_EQ(channel.columns.back().count, 4U);
}

TEST(ValueAt, LiesOnTheLineBetweenTwoSamples)
{
    const GraphChannel channel = channelOf({{1, 10}, {3, 20}, {4, 0}});
    EXPECT_THAT(valueAt(channel, 1.0), Optional(DoubleEq(10.0)));
    EXPECT_THAT(valueAt(channel, 2.0), Optional(DoubleEq(15.0)));
    EXPECT_THAT(valueAt(channel, 3.0), Optional(DoubleEq(20.0)));
    EXPECT_THAT(valueAt(channel, 3.25), Optional(DoubleEq(15.0)));
    EXPECT_THAT(valueAt(channel, 4.0), Optional(DoubleEq(0.0)));
}

TEST(ValueAt, OutsideOfTheSamplesIsNone)
{
    EXPECT_EQ(valueAt(GraphChannel(), 0.0), std::nullopt);
    const GraphChannel channel = channelOf({{1, 10}, {3, 20}});
    EXPECT_EQ(valueAt(channel, 0.999), std::nullopt);
    EXPECT_EQ(valueAt(channel, 3.001), std::nullopt);
    EXPECT_EQ(valueAt(channel, noNumber), std::nullopt);
}

TEST(ValueAt, OfEqualTimesIsTheFirst)
{
    const GraphChannel channel = channelOf({{1, 10}, {1, 20}, {1, 30}});
    EXPECT_THAT(valueAt(channel, 1.0), Optional(DoubleEq(10.0)));
}

} // namespace
