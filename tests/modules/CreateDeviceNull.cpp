#include "tests/modules/FixtureDevice.h"

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe("createDevice gives none", "libCanCreateDeviceNull");
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return nullptr;
}
