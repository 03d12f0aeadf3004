#pragma once

#include "core/FrameModes.h"
#include "core/NumberType.h"

#include <array>
#include <cstdint>

/// How a traffic window reads frames. The numbers are stored in project files.
enum class DisplayMode : std::int32_t {
    Can = 0,
    CanAerospace = 3,
    Arinc825Raw = 4,
    Arinc825Profile = 6
};

/// How the traffic windows name a display mode; null where a window does not offer it.
struct DisplayModeTexts
{
    DisplayMode mode;
    const char* receive;
    const char* transmit;
    const char* trace;
};

inline constexpr std::array<DisplayModeTexts, 4> displayModes{{
    {DisplayMode::Can, "CAN", "CAN", "CAN"},
    {DisplayMode::CanAerospace, "CANaerospace", "CANaerospace", "CANaerospace"},
    {DisplayMode::Arinc825Raw, "ARINC 825 Raw", "ARINC 825 Raw", nullptr},
    {DisplayMode::Arinc825Profile, "ARINC 825 Profile", nullptr, "ARINC-825"},
}};

/// Payload lengths by DLC code (ISO 11898-1), in bytes.
inline constexpr std::array<int, 16> byteCounts{0, 1,  2,  3,  4,  5,  6,  7,
                                                8, 12, 16, 20, 24, 32, 48, 64};

/// The DLC code of a byte count; 0 for a count that no code stands for.
int dlcCode(int byteCount);

/// The byte count of a DLC code, which is clamped into 0 to 15.
int byteCountOfDlc(int code);
