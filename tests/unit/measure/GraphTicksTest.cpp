#include "measure/GraphTicks.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>
#include <set>
#include <string>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

struct StepCase
{
    double span;
    double pixels;
    float step;
    int subdivisions;
};

class NiceStepTest : public testing::TestWithParam<StepCase>
{
};

TEST_P(NiceStepTest, IsFoundForTheRawStep)
{
    const NiceStep step = niceStep(GetParam().span, GetParam().pixels, 25.0F);
    EXPECT_FLOAT_EQ(step.step, GetParam().step);
    EXPECT_EQ(step.subdivisions, GetParam().subdivisions);
    EXPECT_NEAR(step.exactStep, static_cast<double>(GetParam().step),
                1e-6 * static_cast<double>(GetParam().step));
}

// 250 pixels and a target of 25: the raw step is a tenth of the span.
INSTANTIATE_TEST_SUITE_P(Raw, NiceStepTest,
                         testing::Values(StepCase{10.0, 250.0, 2.0F, 4},    // 1
                                         StepCase{19.0, 250.0, 2.0F, 4},    // 1.9
                                         StepCase{20.0, 250.0, 5.0F, 5},    // 2
                                         StepCase{49.0, 250.0, 5.0F, 5},    // 4.9
                                         StepCase{50.0, 250.0, 10.0F, 5},   // 5
                                         StepCase{99.0, 250.0, 10.0F, 5},   // 9.9
                                         StepCase{100.0, 250.0, 10.0F, 5},  // 10: power 1
                                         StepCase{150.0, 250.0, 20.0F, 4},  // 15
                                         StepCase{450.0, 250.0, 50.0F, 5},  // 45
                                         StepCase{600.0, 250.0, 100.0F, 5}, // 60
                                         StepCase{9.0, 250.0, 1.0F, 5},     // 0.9
                                         StepCase{4.0, 250.0, 0.5F, 5},     // 0.4
                                         StepCase{1.5, 250.0, 0.2F, 4},     // 0.15
                                         StepCase{0.03, 250.0, 0.005F, 5},  // 0.003
                                         StepCase{3e30, 250.0, 5e29F, 5}));

TEST(NiceStep, OfAPowerOfTenFollowsSinglePrecision)
{
    // 1e8 divided by its power is 1: the multiplier is that of digits below 2.
    EXPECT_FLOAT_EQ(niceStep(1e9, 250.0, 25.0F).step, 2e8F);
    // 0.1 is divided by 0.01: the multiplier is the largest.
    EXPECT_FLOAT_EQ(niceStep(1.0, 250.0, 25.0F).step, 0.1F);
}

TEST(NiceStep, OfAnAxisShorterThanTheTargetIsNone)
{
    EXPECT_FLOAT_EQ(niceStep(60.0, 69.0, timeTickPixels).step, -1.0F);
    EXPECT_TRUE(niceStep(60.0, 70.0, timeTickPixels).hasTicks());
    EXPECT_FLOAT_EQ(niceStep(2.0, 24.0, valueTickPixels).step, -1.0F);
    EXPECT_TRUE(niceStep(2.0, 25.0, valueTickPixels).hasTicks());
}

TEST(NiceStep, OfWhatIsNoRangeIsNone)
{
    for (const double span : {0.0, -5.0, infinity, -infinity, noNumber, 1e300, 1e-300}) {
        EXPECT_FALSE(niceStep(span, 250.0, 25.0F).hasTicks()) << span;
    }
    for (const double pixels : {0.0, -20.0, noNumber}) {
        EXPECT_FALSE(niceStep(1.0, pixels, 25.0F).hasTicks()) << pixels;
    }
}

TEST(TimeTicks, GoFromEndToEndOfTheRange)
{
    GraphTicks ticks;
    timeTicks({20.0F, 4, 20.0}, 0.0, 60.0, ticks);
    EXPECT_THAT(ticks.major, ElementsAre(0.0, 20.0, 40.0, 60.0));
    EXPECT_THAT(ticks.minor, ElementsAre(5.0, 10.0, 15.0, 25.0, 30.0, 35.0, 45.0, 50.0, 55.0));
}

TEST(TimeTicks, MinorOnesAlsoStandLeftOfTheFirstMajorOne)
{
    GraphTicks ticks;
    timeTicks({20.0F, 4, 20.0}, 8.0, 30.0, ticks);
    EXPECT_THAT(ticks.major, ElementsAre(20.0));
    EXPECT_THAT(ticks.minor, ElementsAre(10.0, 15.0, 25.0, 30.0));
}

TEST(TimeTicks, BelowZeroNoMinorOnesStandLeftOfTheFirstMajorOne)
{
    GraphTicks ticks;
    timeTicks({20.0F, 4, 20.0}, -32.0, 5.0, ticks);
    EXPECT_THAT(ticks.major, ElementsAre(-20.0, 0.0));
    EXPECT_THAT(ticks.minor, ElementsAre(-15.0, -10.0, -5.0, 5.0));
}

TEST(ValueTicks, BelowZeroMinorOnesStandLeftOfTheFirstMajorOne)
{
    GraphTicks ticks;
    valueTicks({20.0F, 4, 20.0}, -32.0, 5.0, ticks);
    EXPECT_THAT(ticks.major, ElementsAre(-20.0, 0.0));
    EXPECT_THAT(ticks.minor, ElementsAre(-30.0, -25.0, -15.0, -10.0, -5.0, 5.0));
}

TEST(ValueTicks, StandOnTheEndsOfTheRangeInSpiteOfRounding)
{
    GraphTicks ticks;
    valueTicks(niceStep(2.0, 500.0, valueTickPixels), -0.5, 1.5, ticks);
    ASSERT_EQ(ticks.major.size(), 21U);
    EXPECT_NEAR(ticks.major.front(), -0.5, 1e-9);
    EXPECT_NEAR(ticks.major.back(), 1.5, 1e-9);
}

TEST(ValueTicks, StandOnRoundNumbersFarFromZero)
{
    GraphTicks ticks;
    valueTicks(niceStep(1.0, 250.0, valueTickPixels), 1'000'000.0, 1'000'001.0, ticks);
    ASSERT_EQ(ticks.major.size(), 11U);
    EXPECT_EQ(valueLabel(ticks.major[3], 2), "1000000.30");
}

TEST(ValueTicks, HaveNoNegativeZero)
{
    GraphTicks ticks;
    valueTicks({1.0F, 5, 1.0}, -0.5, 1.5, ticks);
    ASSERT_FALSE(ticks.major.empty());
    EXPECT_EQ(valueLabel(ticks.major.front(), 1), "0.0");
}

TEST(Ticks, EndWhereTheStepIsLostInTheDigits)
{
    GraphTicks ticks;
    for (const double lower : {1e9, -1e9, 1e30, -1e30, 1e300}) {
        for (const float step : {1e-9F, 1e-30F, 1.0F}) {
            timeTicks({step, 5, static_cast<double>(step)}, lower, lower + 1e-6, ticks);
            EXPECT_LT(ticks.major.size(), 2U) << lower << ' ' << step;
            valueTicks({step, 5, static_cast<double>(step)}, lower, lower + 1e-6, ticks);
            EXPECT_LT(ticks.major.size(), 4U) << lower << ' ' << step;
        }
    }
}

TEST(Ticks, AreBoundedByThePixels)
{
    GraphTicks ticks;
    for (const double span : {1e-30, 1e-9, 1e-3, 0.7, 1.0, 99.0, 1e7, 1e30}) {
        for (const double lower : {0.0, -span, span * 7.0, 1e6}) {
            const NiceStep step = niceStep(span, 1000.0, timeTickPixels);
            timeTicks(step, lower, lower + span, ticks);
            EXPECT_LE(ticks.major.size(), 1000U / 70U + 2U) << span << ' ' << lower;
        }
    }
}

TEST(Ticks, WithoutAStepAreNone)
{
    GraphTicks ticks;
    ticks.major = {1.0};
    ticks.minor = {1.0};
    timeTicks(NiceStep(), 0.0, 60.0, ticks);
    EXPECT_THAT(ticks.major, IsEmpty());
    EXPECT_THAT(ticks.minor, IsEmpty());
    ticks.major = {1.0};
    valueTicks(NiceStep(), 0.0, 60.0, ticks);
    EXPECT_THAT(ticks.major, IsEmpty());
}

TEST(TimeLabel, IsHoursMinutesSeconds)
{
    EXPECT_EQ(timeLabel(0.0), "0:00:00");
    EXPECT_EQ(timeLabel(59.0), "0:00:59");
    EXPECT_EQ(timeLabel(3723.0), "1:02:03");
    EXPECT_EQ(timeLabel(360000.0), "100:00:00");
}

TEST(TimeLabel, CutsFractionsOff)
{
    EXPECT_EQ(timeLabel(1.0), "0:00:01");
    EXPECT_EQ(timeLabel(1.5), "0:00:01");
    EXPECT_EQ(timeLabel(1.999), "0:00:01");
}

TEST(TimeLabel, IsEmptyBelowZeroAndBeyondAllHours)
{
    EXPECT_EQ(timeLabel(-0.5), "");
    EXPECT_EQ(timeLabel(1e30), "");
    EXPECT_EQ(timeLabel(noNumber), "");
    EXPECT_EQ(timeLabel(2147483647.0), "596523:14:07");
}

TEST(ValueDecimals, FollowTheStep)
{
    EXPECT_EQ(valueDecimals(100.0F), 0);
    EXPECT_EQ(valueDecimals(10.0F), 0);
    EXPECT_EQ(valueDecimals(5.0F), 1);
    EXPECT_EQ(valueDecimals(1.0F), 1);
    EXPECT_EQ(valueDecimals(0.5F), 1);
    EXPECT_EQ(valueDecimals(0.1F), 2);
    EXPECT_EQ(valueDecimals(0.05F), 2);
    EXPECT_EQ(valueDecimals(0.002F), 3);
}

TEST(ValueLabel, HasTheDecimalsOfItsAxisUpToFortyLetters)
{
    EXPECT_EQ(valueLabel(-12.5, 1), "-12.5");
    EXPECT_EQ(valueLabel(1e-10, 11), "0.00000000010");
    EXPECT_EQ(valueLabel(12'345'678'901'234'567.0, 0), "12345678901234568");
    EXPECT_EQ(valueLabel(1.0, 38), "1." + std::string(38, '0'));
    EXPECT_EQ(valueLabel(1.0, 39), "1");
}

TEST(ValueLabel, OfMoreLettersIsShortAndTellsItsNumberFromAllOthers)
{
    EXPECT_EQ(valueLabel(1e45, 0), "1e+45");
    EXPECT_EQ(valueLabel(2e-40, 42), "2e-40");
    const double most = std::numeric_limits<double>::max();
    EXPECT_EQ(valueLabel(most, 0), "1.7976931348623157e+308");
    EXPECT_EQ(valueLabel(-most, 300), "-1.7976931348623157e+308");
    EXPECT_NE(valueLabel(std::nextafter(1e45, most), 0), valueLabel(1e45, 0));
}

TEST(ValueLabel, OfNeighboursFarFromZeroDiffer)
{
    GraphTicks ticks;
    for (const double far : {1e6, 123'456'789.0, 1e12}) {
        const NiceStep step = niceStep(1.0, 300.0, valueTickPixels);
        valueTicks(step, far, far + 1.0, ticks);
        std::set<std::string> labels;
        for (const double tick : ticks.major) {
            labels.insert(valueLabel(tick, valueDecimals(step.step)));
        }
        EXPECT_EQ(labels.size(), ticks.major.size()) << far;
        EXPECT_GT(labels.size(), 5U) << far;
    }
}

} // namespace
