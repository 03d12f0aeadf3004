#include "message/MessageInterface.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

/// Resolves `name`, in the type of the exported function.
template <typename Function>
Function* resolve(void* library, const char* name)
{
    return reinterpret_cast<Function*>(dlsym(library, name));
}

TEST(Module, ExportsItsTwoFunctions)
{
    // Never unloaded, as the program does not unload it either.
    void* library = dlopen(CAN_VIRTUAL_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    auto* getInfo = resolve<DeviceInfo()>(library, "getInfo");
    auto* createDevice = resolve<Device*()>(library, "createDevice");
    ASSERT_NE(getInfo, nullptr);
    ASSERT_NE(createDevice, nullptr);
    const DeviceInfo info = getInfo();
    EXPECT_EQ(info.displayName, "Virtual CAN Bus");
    EXPECT_EQ(info.moduleName, "libCanVirtual");

    const std::unique_ptr<Device> device(createDevice());
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(device->info().moduleName, info.moduleName);
    for (const DeviceProperty& property : info.properties) {
        EXPECT_EQ(device->properties()->count(property.key), 1U) << property.key;
    }
    EXPECT_EQ(device->status(), DeviceStatus::Closed);
    ASSERT_TRUE(device->open());
    EXPECT_EQ(device->status(), DeviceStatus::Open);
    zul::MessageCan message;
    EXPECT_TRUE(device->sendMessage(&message));
    EXPECT_TRUE(device->close());
}

TEST(Module, DoesNotShowItsInsides)
{
    void* library = dlopen(CAN_VIRTUAL_MODULE, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    EXPECT_EQ(dlsym(library, "_ZN10canvirtual11BusRegistry7processEv"), nullptr);
}

} // namespace
