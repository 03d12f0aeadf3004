#include "core/LowPass.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

double step(double sample, double gain, double dt, double state)
{
    zul::lowPass(sample, gain, dt, state);
    return state;
}

TEST(LowPass, OneSecondWeighsTheSampleTwoToOneAtGainHalf)
{
    // (0.5 * 0 + 30 * 1) / 1.5
    EXPECT_DOUBLE_EQ(step(30.0, 0.5, 1.0, 0.0), 20.0);
    // (0.5 * 20 + 30 * 1) / 1.5, as a float
    EXPECT_DOUBLE_EQ(step(30.0, 0.5, 1.0, 20.0), static_cast<double>(40.0F / 1.5F));
}

TEST(LowPass, MoreThanASecondCountsAsOne)
{
    EXPECT_DOUBLE_EQ(step(30.0, 0.5, 10.0, 0.0), 20.0);
    EXPECT_DOUBLE_EQ(step(30.0, 0.5, std::numeric_limits<double>::infinity(), 0.0), 20.0);
}

TEST(LowPass, HandNumberAtGainPointThree)
{
    // float(0.3) and float(0.05): (0.3 * 100 + 200 * 0.05) / 0.35 = 114.2857...
    EXPECT_NEAR(step(200.0, 0.3, 0.05, 100.0), 114.285714, 1e-5);
}

TEST(LowPass, StatusDrivenReadingAtThePollPeriod)
{
    // A sample of 0 scales the state by 0.5 / 0.55.
    EXPECT_NEAR(step(0.0, 0.5, 0.05, 1000.0), 909.0909, 1e-4);
}

TEST(LowPass, ResultIsRoundedToSinglePrecision)
{
    const double state = step(1.0 / 3.0, 0.3, 0.7, 0.1);
    EXPECT_EQ(state, static_cast<double>(static_cast<float>(state)));
    // The operands are rounded too: a state that no float holds comes back as a float.
    EXPECT_EQ(step(0.0, 0.5, 0.0, 0.1), static_cast<double>(0.1F));
}

TEST(LowPass, NoTimeKeepsTheState)
{
    EXPECT_DOUBLE_EQ(step(1000.0, 0.5, 0.0, 8.0), 8.0);
}

TEST(LowPass, ClockThatJumpsBackKeepsTheState)
{
    EXPECT_DOUBLE_EQ(step(1000.0, 0.5, -0.5, 8.0), 8.0);
    EXPECT_DOUBLE_EQ(step(1000.0, 0.5, -1e9, 8.0), 8.0);
}

TEST(LowPass, ConstantSampleIsReachedAndHeld)
{
    double state = 0.0;
    for (int i = 0; i < 1000; ++i) {
        zul::lowPass(123.0, 0.5, 0.05, state);
    }
    EXPECT_NEAR(state, 123.0, 1e-3);
}

TEST(LowPass, StateStaysBetweenOldStateAndSample)
{
    for (const double dt : {0.0, 0.001, 0.05, 0.5, 1.0, 3.0}) {
        const double state = step(90.0, 0.3, dt, 10.0);
        EXPECT_GE(state, 10.0) << dt;
        EXPECT_LE(state, 90.0) << dt;
    }
}

TEST(LowPass, GainZeroTakesTheSample)
{
    EXPECT_DOUBLE_EQ(step(7.0, 0.0, 0.5, 3.0), 7.0);
    EXPECT_DOUBLE_EQ(step(7.0, 0.0, 0.0, 3.0), 3.0) << "nothing to divide by";
}

TEST(LowPass, LargestFloatStaysFinite)
{
    const double largest = std::numeric_limits<float>::max();
    EXPECT_TRUE(std::isfinite(step(largest, 0.5, 1.0, largest)));
    EXPECT_TRUE(std::isfinite(step(-largest, 0.5, 1.0, -largest)));
}

TEST(LowPass, TakesWhatIsNoNumberWithoutHarm)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(step(nan, 0.5, 0.1, 1.0)));
    EXPECT_DOUBLE_EQ(step(1.0, 0.5, nan, 8.0), 8.0) << "time that is no number is no time";
}

} // namespace
