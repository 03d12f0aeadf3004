#include "message/Device.h"

#include <gtest/gtest.h>

namespace {

class PlainDevice : public Device
{
public:
    PlainDevice() { m_info.moduleName = "libCanPlain"; }
    bool open() override { return true; }
    bool close() override { return true; }
    DeviceStatus status() override { return DeviceStatus::Closed; }
    std::int32_t baudrate() override { return 500000; }
    bool sendMessage(Message*) override { return false; }
    Message* recvMessage() override { return nullptr; }
};

TEST(Device, StatusOfAClosedDeviceIsZero)
{
    PlainDevice device;
    EXPECT_EQ(static_cast<int>(device.status()), 0);
    EXPECT_EQ(static_cast<int>(DeviceStatus::BusPassive), 4);
    EXPECT_EQ(static_cast<int>(DeviceStatus::BusOff), 5);
}

TEST(Device, InfoIsACopy)
{
    PlainDevice device;
    DeviceInfo info = device.info();
    info.moduleName = "changed";
    EXPECT_EQ(device.info().moduleName, "libCanPlain");
}

TEST(Device, PropertiesAreStoredAndTheMapStaysValid)
{
    PlainDevice device;
    auto* properties = device.properties();
    device.setProperty("InterfaceName", "CAN 1");
    EXPECT_EQ(device.getStringProp("InterfaceName"), "CAN 1");
    EXPECT_EQ(properties->at("InterfaceName"), "CAN 1");
    EXPECT_EQ(device.getStringProp("absent"), "");
    EXPECT_EQ(properties->size(), 1U);
}

TEST(Device, ErrorMessageIsKept)
{
    PlainDevice device;
    EXPECT_EQ(device.errorMsg(), "");
    device.setErrorMsg("no adapter");
    EXPECT_EQ(device.errorMsg(), "no adapter");
}

TEST(PropertyKind, HasTheNumbersThatModulesUse)
{
    EXPECT_EQ(static_cast<int>(PropertyKind::Text), 0);
    EXPECT_EQ(static_cast<int>(PropertyKind::Btr), 1);
    EXPECT_EQ(static_cast<int>(PropertyKind::Nbtp), 2);
    EXPECT_EQ(static_cast<int>(PropertyKind::Dbtp), 3);
    EXPECT_EQ(static_cast<int>(PropertyKind::Tdcr), 4);
    EXPECT_EQ(static_cast<int>(PropertyKind::Selection), 5);
    EXPECT_EQ(static_cast<int>(PropertyKind::EditableSelection), 6);
}

} // namespace
