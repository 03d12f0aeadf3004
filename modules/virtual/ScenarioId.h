#pragma once

#include <array>

namespace canvirtual {

/// Traffic that a simulated node makes; the numbers are values of the property "Scenario".
enum class ScenarioId {
    None = 0,
    FlightDemo = 1,
    FdMix = 2,
    Saturated = 3,
    Shortest = 4,
    ErrorFrames = 5,
    BusOff = 6,
    Burst = 7,
    LostDevice = 8
};

constexpr int scenarioCount = 9;

/// Names by number, as the property's editor and the status report show them.
constexpr std::array<const char*, scenarioCount> scenarioNames = {
    "None",
    "Flight demonstration",
    "CAN FD mix, 12 to 64 bytes",
    "Saturated, 8-byte frames",
    "Saturated, shortest frames",
    "Error frames",
    "Bus passive, bus off and recovery",
    "Burst after silence",
    "Device gets lost",
};

} // namespace canvirtual
