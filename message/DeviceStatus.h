#pragma once

#include <cstdint>

/// Bus state of a device. Any value but these three means open and active.
enum class DeviceStatus : std::int32_t {
    Closed = 0, ///< not open, or the hardware has been lost
    Open = 1,
    BusPassive = 4,
    BusOff = 5
};
