#include "modules/virtual/FaultConfinement.h"

#include <gtest/gtest.h>

using namespace canvirtual;

namespace {

constexpr BusTime bitTime = microsecond;

TEST(FaultConfinement, SixteenTransmitErrorsMakePassive)
{
    FaultConfinement controller(bitTime);
    for (int error = 0; error < 15; ++error) {
        controller.transmitError(0);
    }
    EXPECT_EQ(controller.transmitErrors(), 120);
    EXPECT_EQ(controller.status(), DeviceStatus::Open);
    controller.transmitError(0);
    EXPECT_EQ(controller.transmitErrors(), 128);
    EXPECT_EQ(controller.status(), DeviceStatus::BusPassive);
    controller.transmitted();
    EXPECT_EQ(controller.status(), DeviceStatus::Open);
}

TEST(FaultConfinement, ThirtyTwoTransmitErrorsMakeBusOff)
{
    FaultConfinement controller(bitTime);
    for (int error = 0; error < 31; ++error) {
        controller.transmitError(0);
    }
    EXPECT_FALSE(controller.isBusOff());
    EXPECT_EQ(controller.recoversAt(), never);
    controller.transmitError(10 * second);
    EXPECT_EQ(controller.status(), DeviceStatus::BusOff);
    const BusTime recovery = 12 * second + BusTime{128} * 11 * bitTime;
    EXPECT_EQ(controller.recoversAt(), recovery);
    controller.transmitError(11 * second);
    controller.update(recovery - 1);
    EXPECT_TRUE(controller.isBusOff());
    controller.update(recovery);
    EXPECT_EQ(controller.status(), DeviceStatus::Open);
    EXPECT_EQ(controller.transmitErrors(), 0);
}

TEST(FaultConfinement, ReceiveErrorsNeverMakeBusOff)
{
    FaultConfinement controller(bitTime);
    for (int error = 0; error < 1'000; ++error) {
        controller.receiveError();
    }
    EXPECT_EQ(controller.receiveErrors(), 255);
    EXPECT_EQ(controller.status(), DeviceStatus::BusPassive);
    controller.received();
    EXPECT_EQ(controller.receiveErrors(), 119);
    EXPECT_EQ(controller.status(), DeviceStatus::Open);
}

TEST(FaultConfinement, CountersStopAtZero)
{
    FaultConfinement controller(bitTime);
    controller.received();
    controller.transmitted();
    EXPECT_EQ(controller.receiveErrors(), 0);
    EXPECT_EQ(controller.transmitErrors(), 0);
}

} // namespace
