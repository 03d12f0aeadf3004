#include "project/Filter.h"

#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

Filter enabled()
{
    Filter filter;
    filter.setOn(true);
    return filter;
}

TEST(Filter, NewOneIsOffAndSpansAllIdentifiers)
{
    const Filter filter;
    EXPECT_FALSE(filter.isOn());
    EXPECT_EQ(filter.type(), 0);
    EXPECT_EQ(filter.minId(), 0);
    EXPECT_EQ(filter.maxId(), 536870911);
    EXPECT_TRUE(filter.ids().empty());
}

TEST(Filter, OffPassesEverythingWhateverItHolds)
{
    Filter filter;
    filter.setMin(100);
    filter.setMax(200);
    filter.setType(1);
    EXPECT_TRUE(filter.matches(5));
    EXPECT_TRUE(filter.matches(0xFFFFFFFFU));
}

TEST(Filter, LimitsAreInclusive)
{
    Filter filter = enabled();
    filter.setMin(100);
    filter.setMax(200);
    EXPECT_FALSE(filter.matches(99));
    EXPECT_TRUE(filter.matches(100));
    EXPECT_TRUE(filter.matches(200));
    EXPECT_FALSE(filter.matches(201));
}

TEST(Filter, IdentifierWithBit31FailsTheLimits)
{
    EXPECT_FALSE(enabled().matches(0x80000000U));
    EXPECT_TRUE(enabled().matches(0x1FFFFFFFU));
    EXPECT_FALSE(enabled().matches(0x20000000U));
}

TEST(Filter, SingleWithoutIdentifiersRejectsEverything)
{
    Filter filter = enabled();
    filter.setType(1);
    EXPECT_FALSE(filter.matches(0));
    filter.addId(7);
    EXPECT_TRUE(filter.matches(7));
    EXPECT_FALSE(filter.matches(8));
}

TEST(Filter, UnknownTypeCountsAsSingle)
{
    Filter filter = enabled();
    filter.setType(2);
    filter.addId(7);
    EXPECT_TRUE(filter.matches(7));
    EXPECT_FALSE(filter.matches(8));
}

TEST(Filter, BoundsAreClamped)
{
    Filter filter;
    filter.setMin(-5);
    EXPECT_EQ(filter.minId(), 0);
    filter.setMax(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(filter.maxId(), 0x1FFFFFFF);
}

TEST(Filter, CrossingBoundsSwap)
{
    Filter filter;
    filter.setMin(10);
    filter.setMax(5);
    EXPECT_EQ(filter.minId(), 5);
    EXPECT_EQ(filter.maxId(), 10);
    filter.setMin(0x30000000);
    EXPECT_EQ(filter.minId(), 10);
    EXPECT_EQ(filter.maxId(), 0x1FFFFFFF);
}

TEST(Filter, MinimumNeverExceedsMaximum)
{
    constexpr unsigned seed = 4711;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::int32_t> value(std::numeric_limits<std::int32_t>::min(),
                                                      std::numeric_limits<std::int32_t>::max());
    Filter filter;
    for (int i = 0; i < 2000; ++i) {
        (i % 2 == 0) ? filter.setMin(value(generator)) : filter.setMax(value(generator));
        ASSERT_LE(filter.minId(), filter.maxId()) << "seed " << seed << " step " << i;
        ASSERT_GE(filter.minId(), 0);
        ASSERT_LE(filter.maxId(), Filter::maxIdentifier);
    }
}

TEST(Filter, IdentifiersStandOnceInOrder)
{
    Filter filter;
    for (const std::uint32_t id : {9U, 3U, 9U, 5U}) {
        filter.addId(id);
    }
    EXPECT_EQ(filter.ids(), (std::vector<std::uint32_t>{3, 5, 9}));
    filter.removeId(5);
    filter.removeId(77);
    EXPECT_EQ(filter.ids(), (std::vector<std::uint32_t>{3, 9}));
    filter.setIds({7, 7, 2});
    EXPECT_EQ(filter.ids(), (std::vector<std::uint32_t>{2, 7}));
    filter.clearIds();
    EXPECT_TRUE(filter.ids().empty());
}

} // namespace
