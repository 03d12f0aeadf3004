#include "tests/modules/FixtureDevice.h"

#include <stdexcept>

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    throw std::runtime_error("getInfo of the fixture");
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return nullptr;
}
