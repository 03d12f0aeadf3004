#include "tests/modules/FixtureDevice.h"

#include <stdexcept>

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe("createDevice throws", "libCanCreateDeviceThrows");
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    throw std::runtime_error("createDevice of the fixture");
}
