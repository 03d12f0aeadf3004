#include "message/MessageInterface.h"
#include "modules/virtual/BusRegistry.h"
#include "modules/virtual/DeviceDescription.h"
#include "modules/virtual/VirtualDevice.h"

ZUL_MODULE_EXPORT DeviceInfo getInfo()
{
    return canvirtual::deviceDescription();
}

ZUL_MODULE_EXPORT Device* createDevice()
{
    return new canvirtual::VirtualDevice(canvirtual::BusRegistry::process());
}
