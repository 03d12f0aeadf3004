#include "modules/support/StatusRows.h"

#include <gtest/gtest.h>

using namespace canmodule;

namespace {

TEST(StatusRows, StatesHaveTheirColours)
{
    EXPECT_EQ(stateEntry(DeviceStatus::Closed).value, "Closed");
    EXPECT_EQ(stateEntry(DeviceStatus::Open).color, color::good);
    EXPECT_EQ(stateEntry(DeviceStatus::BusPassive).color, color::warning);
    EXPECT_EQ(stateEntry(DeviceStatus::BusOff).color, color::bad);
    EXPECT_EQ(stateEntry(static_cast<DeviceStatus>(9)).value, "Unknown");
}

TEST(StatusRows, NumbersAreMarkedUnlessZero)
{
    EXPECT_EQ(numberEntry("Lost", 0, color::bad).color, color::plain);
    EXPECT_EQ(numberEntry("Lost", 2U, color::bad).color, color::bad);
    EXPECT_EQ(numberEntry("Lost", 2U).value, "2");
}

TEST(StatusRows, QueuesAreMarkedFromHalfFullOn)
{
    EXPECT_EQ(fillEntry("Queue", 49, 100).color, color::plain);
    EXPECT_EQ(fillEntry("Queue", 50, 100).color, color::warning);
    EXPECT_EQ(fillEntry("Queue", 50, 100).value, "50 / 100");
}

TEST(StatusRows, ErrorCountersAreMarkedByTheLimitsOfTheStandard)
{
    EXPECT_EQ(errorCounterEntry("TEC", 95).color, color::plain);
    EXPECT_EQ(errorCounterEntry("TEC", 96).color, color::warning);
    EXPECT_EQ(errorCounterEntry("TEC", 127).color, color::warning);
    EXPECT_EQ(errorCounterEntry("TEC", 128).color, color::bad);
}

TEST(StatusRows, RatesAreRoundedAndBounded)
{
    EXPECT_EQ(perSecond(100, second / 5), 500U);
    EXPECT_EQ(perSecond(1, 0), 0U);
    EXPECT_EQ(perSecond(~std::uint64_t{0}, 1), 0xFFFFFFFFU);
    EXPECT_EQ(tenthsText(1005), "100.5");
}

} // namespace
