#pragma once

#include <array>
#include <cstdint>

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
