#include "message/MessageInterface.h"
#include "modules/network/DeviceDescription.h"
#include "modules/network/NetworkDevice.h"

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return cannetwork::deviceDescription();
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new cannetwork::NetworkDevice;
}
