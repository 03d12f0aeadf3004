#include "measure/GraphColumns.h"
#include "measure/GraphTicks.h"
#include "tests/unit/measure/GraphFixture.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <gmock/gmock.h>
#include <limits>

// What a pixel column keeps of a burst with values that are no finite numbers, and how numbers of
// any size are written.

namespace zul::test {

namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

GraphColumn columnOf(std::initializer_list<double> values)
{
    GraphChannel channel;
    for (const double value : values) {
        addToColumns(channel, {1.0, value}, 0.5, 0.0);
    }
    return channel.columns.at(0);
}

class NoFiniteNumber : public testing::TestWithParam<double>
{
};

TEST_P(NoFiniteNumber, AsTheSecondValueHidesNoExtremes)
{
    EXPECT_THAT(columnOf({5.0, GetParam(), 9.0, 1.0, 4.0}).values, ElementsAre(5.0, 1.0, 9.0, 4.0));
    EXPECT_THAT(columnOf({5.0, GetParam(), 2.0, 8.0}).values, ElementsAre(5.0, 2.0, 8.0, 8.0));
    EXPECT_THAT(columnOf({5.0, GetParam(), 8.0, 2.0}).values, ElementsAre(5.0, 2.0, 8.0, 2.0));
}

TEST_P(NoFiniteNumber, AsTheThirdValueHidesNoExtremes)
{
    EXPECT_THAT(columnOf({5.0, 9.0, GetParam(), 1.0, 4.0}).values, ElementsAre(5.0, 1.0, 9.0, 4.0));
    EXPECT_THAT(columnOf({5.0, 2.0, GetParam(), 8.0}).values, ElementsAre(5.0, 2.0, 8.0, 8.0));
}

TEST_P(NoFiniteNumber, AsALaterValueHidesNoExtremes)
{
    EXPECT_THAT(columnOf({5.0, 3.0, 6.0, GetParam(), 4.0}).values, ElementsAre(5.0, 3.0, 6.0, 4.0));
    EXPECT_THAT(columnOf({5.0, 3.0, 6.0, GetParam(), 1.0, 9.0, GetParam(), 4.0}).values,
                ElementsAre(5.0, 1.0, 9.0, 4.0));
}

TEST_P(NoFiniteNumber, BeforeTheFirstFiniteOnesGivesWayToThem)
{
    EXPECT_THAT(columnOf({GetParam(), GetParam(), GetParam(), GetParam(), 7.0, 2.0}).values,
                ElementsAre(testing::Truly([](double first) { return !std::isfinite(first); }), 2.0,
                            7.0, 2.0));
}

TEST_P(NoFiniteNumber, StaysAsTheLastValue)
{
    const GraphColumn column = columnOf({5.0, 3.0, 6.0, 4.0, GetParam()});
    EXPECT_EQ(column.values[1], 3.0);
    EXPECT_EQ(column.values[2], 6.0);
    EXPECT_FALSE(std::isfinite(column.values[3]));
}

TEST_P(NoFiniteNumber, AloneIsAGap)
{
    const GraphColumn column =
        columnOf({GetParam(), GetParam(), GetParam(), GetParam(), GetParam()});
    EXPECT_THAT(column.values,
                Each(testing::Truly([](double value) { return !std::isfinite(value); })));
}

INSTANTIATE_TEST_SUITE_P(NoneAndInfinite, NoFiniteNumber,
                         testing::Values(noNumber, infinity, -infinity));

class GraphNumbersTest : public GraphTest
{
};

TEST_F(GraphNumbersTest, ScaleOfAChannelFollowsTheFiniteValuesOfABurst)
{
    show(1);
    m_engine.setAutoMode(0);
    paint();
    m_engine.setCurrentTime(1.0);
    for (const double value : {5.0, noNumber, 9.0, infinity, 1.0, 4.0}) {
        m_engine.addValue(0, value);
    }
    paint();
    EXPECT_EQ(channel().seenMin, 1.0);
    EXPECT_EQ(channel().seenMax, 9.0);
}

TEST_F(GraphNumbersTest, LegendAndCursorWriteWholeNumbersAsLongAsTheyFit)
{
    show(1);
    m_engine.setParameterLabels(0, "Speed", "kt");
    addAt(1.0, 1e55); // 56 digits and 7 letters behind them
    paint(1);
    std::array<char, 80> whole{};
    std::snprintf(whole.data(), whole.size(), "%f", 1e55);
    EXPECT_THAT(texts(), Contains(std::string("Speed   ") + whole.data() + " [kt]"));
}

TEST_F(GraphNumbersTest, LegendAndCursorCutNoNumber)
{
    show(1);
    m_engine.setParameterLabels(0, "Speed", "kt");
    m_engine.setAutoMode(0);
    m_engine.setSplitMode(1);
    m_engine.setParameterYMin(0, -3e38F);
    m_engine.setParameterYMax(0, 3e38F);
    paint();
    for (const double time : {0.0, 60.0}) {
        addAt(time, 2.5e200);
    }
    m_engine.holdCursor(300, 190); // in the middle of the plot
    paint(1);
    EXPECT_THAT(texts(), Contains("Speed   2.5e+200 [kt]"));
    EXPECT_THAT(texts(), Contains("2.5e+200"));
}

TEST_F(GraphNumbersTest, LegendNamesWhatIsNoNumber)
{
    show(1);
    addAt(1.0, infinity);
    paint(1);
    EXPECT_THAT(texts(), Contains("NoName   inf []"));
}

TEST(ValueLabel, KeepsToTheLettersThatAreGiven)
{
    EXPECT_EQ(valueLabel(1.0, 61, 63), "1." + std::string(61, '0'));
    EXPECT_EQ(valueLabel(1.0, 62, 63), "1");
    EXPECT_EQ(valueLabel(1.0, 62, 1000), "1"); // at most 63, whatever is asked for
    EXPECT_EQ(valueLabel(125.5, 2, 6), "125.50");
    EXPECT_EQ(valueLabel(125.5, 2, 5), "125.5");
}

} // namespace

} // namespace zul::test
