#pragma once

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

/// One addressing mode of a frame, by the value of `zul::MessageCan::EMsgMode`.
struct MessageModeTexts
{
    std::int32_t mode;
    const char* text;   ///< in selection boxes
    const char* prefix; ///< before the identifier in a row
    int idBits;         ///< width of the identifier
    bool isFd;
    bool hasBitRateSwitch;
};

inline constexpr std::array<MessageModeTexts, 6> messageModes{{
    {0, "11 Bit", "S", 11, false, false},
    {1, "29 Bit", "E", 29, false, false},
    {2, "11 Bit FD", "SF", 11, true, false},
    {3, "29 Bit FD", "EF", 29, true, false},
    {4, "11 Bit BRS", "SB", 11, true, true},
    {5, "29 Bit BRS", "EB", 29, true, true},
}};

/// What stands for the identifier of an error frame.
inline constexpr const char* errorFrameText = "ERROR FRAME";

/// The prefix of the mode, empty for a mode that is none of the six.
const char* messageModePrefix(std::uint32_t mode);

/// Payload lengths by DLC code (ISO 11898-1), in bytes.
inline constexpr std::array<int, 16> byteCounts{0, 1,  2,  3,  4,  5,  6,  7,
                                                8, 12, 16, 20, 24, 32, 48, 64};

/// The DLC code of a byte count; 0 for a count that no code stands for.
int dlcCode(int byteCount);

/// The byte count of a DLC code, which is clamped into 0 to 15.
int byteCountOfDlc(int code);
