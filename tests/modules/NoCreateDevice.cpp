#include "tests/modules/FixtureDevice.h"

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe("No createDevice", "libCanNoCreateDevice");
}
