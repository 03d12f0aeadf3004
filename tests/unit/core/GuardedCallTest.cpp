#include "core/GuardedCall.h"

#include "core/ModuleRegistry.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/FixtureModules.h"

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

namespace {

using zul::guardedCall;
using zul::test::ConsoleCapture;

TEST(GuardedCall, PassesTheResultThrough)
{
    ConsoleCapture console;
    EXPECT_EQ(guardedCall("op", -1, [] { return 5; }), 5);
    EXPECT_EQ(console.err(), "");
}

TEST(GuardedCall, StandardExceptionGivesTheFallbackAndItsText)
{
    ConsoleCapture console;
    EXPECT_EQ(guardedCall("op", -1, []() -> int { throw std::runtime_error("100% gone"); }), -1);
    EXPECT_EQ(console.err(), "Device module: op failed: 100% gone\n");
    EXPECT_EQ(console.out(), "");
}

TEST(GuardedCall, AnyOtherExceptionGivesTheFallback)
{
    ConsoleCapture console;
    EXPECT_EQ(guardedCall("op", -1, []() -> int { throw 3; }), -1);
    EXPECT_EQ(console.err(), "Device module: op failed\n");
}

TEST(GuardedCall, OperationWithoutResult)
{
    ConsoleCapture console;
    bool called = false;
    guardedCall("quiet", [&] { called = true; });
    guardedCall("loud", [] { throw std::runtime_error("x"); });
    EXPECT_TRUE(called);
    EXPECT_EQ(console.err(), "Device module: loud failed: x\n");
}

TEST(GuardedCall, CatchesWhatADeviceOfAModuleThrows)
{
    ConsoleCapture console;
    const ModuleRegistry registry({zul::test::fixtureModuleDirectory("device_throws")});
    std::unique_ptr<Device> device(registry.createDevice("libCanDeviceThrows"));
    ASSERT_NE(device, nullptr);
    EXPECT_FALSE(guardedCall("open", false, [&] { return device->open(); }));
    EXPECT_EQ(guardedCall("recvMessage", static_cast<Message*>(nullptr),
                          [&] { return device->recvMessage(); }),
              nullptr);
    EXPECT_EQ(guardedCall("status", DeviceStatus::Closed, [&] { return device->status(); }),
              DeviceStatus::Closed);
    EXPECT_EQ(console.err(), "Device module: open failed: open of the fixture\n"
                             "Device module: recvMessage failed\n"
                             "Device module: status failed: status of the fixture\n");
}

} // namespace
