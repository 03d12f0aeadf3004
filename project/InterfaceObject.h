#pragma once

#include "message/DeviceStatus.h"
#include "project/Object.h"

/// What the project sees of a CAN interface.
class InterfaceObject : public Object
{
public:
    InterfaceObject();
    ~InterfaceObject() override;

    InterfaceObject* asInterface() override;

    /// Delivers what has been received since the last poll; main thread. False if the hardware has
    /// gone.
    virtual bool poll() = 0;
    /// The bus state; `Closed` without a device.
    virtual DeviceStatus status() = 0;
    /// Closes the device; false if there is none or it could not be closed.
    virtual bool disconnect() = 0;
};
