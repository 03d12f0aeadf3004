#include "tests/modules/FixtureDevice.h"

// A module as it should be. The build makes it more than once, under other display names and file
// names.

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return fixture::describe(FIXTURE_DISPLAY_NAME, FIXTURE_MODULE_NAME);
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new fixture::FixtureDevice(getInfo());
}
