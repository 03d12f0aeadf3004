#pragma once

#include "message/MessageInterfaceExport.h"

#include <cstdint>
#include <string>
#include <vector>

/// How the value of a `DeviceProperty` is edited, and the form of its value text.
enum class PropertyKind : std::uint32_t {
    Text = 0,              ///< line edit; as typed
    Btr = 1,               ///< choices and the fields BTR0, BTR1; decimal
    Nbtp = 2,              ///< choices, M_CAN register NBTP; "0x%08X"
    Dbtp = 3,              ///< choices, M_CAN register DBTP; "0x%08X"
    Tdcr = 4,              ///< choices, M_CAN register TDCR; "0x%08X"
    Selection = 5,         ///< choices; decimal
    EditableSelection = 6, ///< choices that can be typed over; as typed
};

/// One predefined value of a property.
struct MESSAGE_INTERFACE_EXPORT PropertyChoice
{
    std::string text;
    std::int32_t value = 0;
};

/// One configuration parameter of a device module.
struct MESSAGE_INTERFACE_EXPORT DeviceProperty
{
    std::string label; ///< shown left of the editor
    std::string key;   ///< key in the device's property map
    std::string extra1;
    PropertyKind kind = PropertyKind::Text;
    std::vector<PropertyChoice> choices;
    std::string extra2;
};

/// What a device module says of itself.
struct MESSAGE_INTERFACE_EXPORT DeviceInfo
{
    DeviceInfo();
    ~DeviceInfo();
    DeviceInfo(const DeviceInfo& other);
    DeviceInfo(DeviceInfo&& other) noexcept;
    DeviceInfo& operator=(const DeviceInfo& other);
    DeviceInfo& operator=(DeviceInfo&& other) noexcept;

    std::string displayName; ///< shown in the list of devices
    std::string description;
    std::string moduleName;                 ///< identifies the module, also in project files
    std::vector<DeviceProperty> properties; ///< in display order
};
