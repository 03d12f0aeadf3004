#include "tests/modules/FixtureDevice.h"

/// Defined nowhere: a module that needs what is not installed.
int functionOfAnotherLibrary();

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe("Unresolved", "libCanUnresolved");
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return functionOfAnotherLibrary() != 0 ? new fixture::FixtureDevice(getInfo()) : nullptr;
}
