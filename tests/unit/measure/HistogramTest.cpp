#include "core/LowPass.h"
#include "measure/BusLoadHistogram.h"
#include "measure/SpreadHistogram.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

constexpr std::uint32_t largest = std::numeric_limits<std::uint32_t>::max();

TEST(HistogramKeys, NumbersAreTruncatedTo32BitsByDefinedMeans)
{
    EXPECT_EQ(truncatedToUnsigned(0.0), 0U);
    EXPECT_EQ(truncatedToUnsigned(2.99), 2U);
    EXPECT_EQ(truncatedToUnsigned(-0.5), 0U);
    EXPECT_EQ(truncatedToUnsigned(-1e300), 0U);
    EXPECT_EQ(truncatedToUnsigned(4294967294.9), largest - 1);
    EXPECT_EQ(truncatedToUnsigned(4294967295.0), largest);
    EXPECT_EQ(truncatedToUnsigned(1e300), largest);
    EXPECT_EQ(truncatedToUnsigned(std::numeric_limits<double>::infinity()), largest);
    EXPECT_EQ(truncatedToUnsigned(std::numeric_limits<double>::quiet_NaN()), 0U);
}

TEST(HistogramKeys, FullHistogramCountsInTheNearestSlot)
{
    HistogramBuckets buckets;
    for (std::uint32_t i = 0; i < maxBuckets; ++i) {
        EXPECT_EQ(countInBucket(buckets, 100 + i * 10), 1U);
    }
    EXPECT_EQ(countInBucket(buckets, 0), 2U);
    EXPECT_EQ(countInBucket(buckets, 113), 2U);
    EXPECT_EQ(buckets.at(110), 2U);
    EXPECT_EQ(countInBucket(buckets, 118), 2U);
    EXPECT_EQ(buckets.at(120), 2U);
    EXPECT_EQ(countInBucket(buckets, largest), 2U);
    EXPECT_EQ(countInBucket(buckets, 120), 3U);
    EXPECT_EQ(buckets.size(), maxBuckets);
}

TEST(SpreadHistogram, FirstMessageHasNoPeriod)
{
    SpreadHistogram spread;
    EXPECT_EQ(spread.count(), 0U);
    spread.add(50.0, 1.0);
    EXPECT_EQ(spread.count(), 1U);
    EXPECT_TRUE(spread.buckets().empty());
    EXPECT_EQ(spread.maxCount(), 0U);
    EXPECT_DOUBLE_EQ(spread.lowest(), 0.0);
    EXPECT_DOUBLE_EQ(spread.highest(), 0.0);
    EXPECT_DOUBLE_EQ(spread.average(), 0.0);
}

TEST(SpreadHistogram, PeriodsFallIntoTheNearestSlotOf10Microseconds)
{
    SpreadHistogram spread;
    spread.add(0.0, 1.0);
    spread.add(0.010, 1.0);
    EXPECT_EQ(spread.buckets(), (HistogramBuckets{{1000, 1}}));
    spread.add(0.020004, 1.0);
    spread.add(0.030002, 1.0);
    EXPECT_EQ(spread.buckets(), (HistogramBuckets{{1000, 3}}));
    spread.add(0.040008, 1.0);
    EXPECT_EQ(spread.buckets(), (HistogramBuckets{{1000, 3}, {1001, 1}}));
    EXPECT_EQ(spread.maxCount(), 3U);
    EXPECT_EQ(spread.minKey(), 1000U);
    EXPECT_EQ(spread.maxKey(), 1001U);
    EXPECT_EQ(spread.count(), 5U);
}

TEST(SpreadHistogram, RangeHasRoomFromTheSecondPeriodOn)
{
    const double room = static_cast<double>(static_cast<float>(6e-6));
    SpreadHistogram spread;
    spread.add(0.0, 1.0);
    spread.add(0.5, 1.0);
    EXPECT_DOUBLE_EQ(spread.lowest(), 0.5);
    EXPECT_DOUBLE_EQ(spread.highest(), 0.5);
    spread.add(1.0, 1.0);
    EXPECT_DOUBLE_EQ(spread.lowest(), 0.5 - room);
    EXPECT_DOUBLE_EQ(spread.highest(), 0.5 + room);
    spread.add(1.25, 1.0);
    EXPECT_DOUBLE_EQ(spread.lowest(), 0.25 - room);
    EXPECT_DOUBLE_EQ(spread.highest(), 0.5 + room);
}

TEST(SpreadHistogram, AverageLastAndFilteredPeriod)
{
    SpreadHistogram spread;
    spread.add(10.0, 1.0);
    spread.add(10.5, 1.1);
    EXPECT_DOUBLE_EQ(spread.average(), 0.5);
    double filtered = 0.0;
    zul::lowPass(0.5, 0.3, 1.1 - 1.0, filtered);
    EXPECT_DOUBLE_EQ(spread.filtered(), filtered);
    spread.add(10.75, 1.3);
    zul::lowPass(0.25, 0.3, 1.3 - 1.1, filtered);
    EXPECT_DOUBLE_EQ(spread.filtered(), filtered);
    EXPECT_DOUBLE_EQ(spread.average(), 0.375);
    EXPECT_DOUBLE_EQ(spread.sum(), 0.75);
    EXPECT_DOUBLE_EQ(spread.last(), 0.25);
    spread.clear();
    EXPECT_EQ(spread.count(), 0U);
    EXPECT_TRUE(spread.buckets().empty());
    EXPECT_DOUBLE_EQ(spread.filtered(), 0.0);
}

TEST(SpreadHistogram, TimesThatJumpAreBounded)
{
    SpreadHistogram spread;
    spread.add(4e9, 1.0);
    spread.add(0.0, 1.0);
    EXPECT_EQ(spread.buckets(), (HistogramBuckets{{0, 1}}));
    spread.add(4e9, 1.0);
    EXPECT_EQ(spread.buckets(), (HistogramBuckets{{0, 1}, {largest, 1}}));
    std::mt19937 generator(825); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same each time
    std::uniform_real_distribution<double> times(0.0, 40000.0);
    for (int i = 0; i < 200'000; ++i) {
        spread.add(times(generator), 1.0);
    }
    EXPECT_LE(spread.buckets().size(), maxBuckets);
    EXPECT_EQ(spread.count(), 200'003U);
}

TEST(BusLoadHistogram, CountsInSlotsSinceTheFirstMessage)
{
    BusLoadHistogram load;
    EXPECT_EQ(load.resolution(), 30U);
    EXPECT_EQ(load.measureTime(), 5000U);
    EXPECT_DOUBLE_EQ(load.xMax(), 0.0);
    load.add(50.0);
    load.add(50.029);
    load.add(50.031);
    load.add(52.0);
    EXPECT_EQ(load.buckets(), (HistogramBuckets{{0, 2}, {1, 1}, {66, 1}}));
    EXPECT_EQ(load.count(), 4U);
    EXPECT_EQ(load.maxCount(), 2U);
    EXPECT_DOUBLE_EQ(load.startTime(), 50.0);
    EXPECT_DOUBLE_EQ(load.xMin(), 0.0);
    EXPECT_DOUBLE_EQ(load.xMax(), 5.0);
    EXPECT_NEAR(load.peakRate(), 2.0 / 0.03, 1e-9);
}

TEST(BusLoadHistogram, FrameAfterTheMeasureTimeChangesNothing)
{
    BusLoadHistogram load;
    load.add(50.0);
    load.add(55.0);
    EXPECT_EQ(load.count(), 2U) << "not exceeded";
    load.add(55.001);
    load.add(5000.0);
    EXPECT_EQ(load.count(), 2U);
    EXPECT_EQ(load.buckets().size(), 2U);
    load.clear();
    EXPECT_EQ(load.count(), 0U);
    EXPECT_DOUBLE_EQ(load.xMax(), 0.0);
    load.add(5000.0);
    EXPECT_EQ(load.count(), 1U) << "a clear starts anew";
}

TEST(BusLoadHistogram, ClockThatJumpsBackCountsInTheFirstSlot)
{
    BusLoadHistogram load;
    load.add(50.0);
    load.add(10.0);
    EXPECT_EQ(load.buckets(), (HistogramBuckets{{0, 2}}));
}

TEST(BusLoadHistogram, ResolutionAndMeasureTimeStartAnew)
{
    BusLoadHistogram load;
    load.add(50.0);
    load.setResolution(100);
    EXPECT_EQ(load.count(), 0U);
    load.add(50.0);
    load.add(50.25);
    EXPECT_EQ(load.buckets(), (HistogramBuckets{{0, 1}, {2, 1}}));
    load.setMeasureTime(100);
    EXPECT_EQ(load.count(), 0U);
    EXPECT_EQ(load.resolution(), 100U);
    load.add(50.0);
    load.add(50.2);
    EXPECT_EQ(load.count(), 1U);
    load.clear();
    EXPECT_EQ(load.measureTime(), 100U);
    load.setResolution(0);
    EXPECT_EQ(load.resolution(), 1U);
}

} // namespace
