#include "tests/modules/FixtureDevice.h"

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new fixture::FixtureDevice(fixture::describe("No getInfo", "libCanNoGetInfo"));
}
