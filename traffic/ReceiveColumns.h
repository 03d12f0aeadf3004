#pragma once

#include "profile/Arinc825Id.h"
#include "traffic/MessageModes.h"

#include <array>
#include <cstddef>
#include <cstdint>

/// Columns that display modes of the Receive window have in common.
enum class ReceiveColumnSet : int {
    Can = 1,            ///< the display modes CAN and CANaerospace
    Arinc825Raw = 2,    ///< the display mode of that name
    Arinc825Profile = 3 ///< the display mode of that name
};

/// Columns of the set `Can`.
enum class ReceiveColumn : int { Count = 0, Time, Id, Length, Message };

/// Columns of the set `Arinc825Raw`.
enum class ReceiveRawColumn : int { Count = 0, Id, Time, Lcc, Fields, Rci, Data };

/// Columns of the set `Arinc825Profile`.
enum class ReceiveProfileColumn : int { Count = 0, Id, Key, Rci, Parameter, Value, Unit };

/// One column, as the window builds it.
struct ReceiveColumnTexts
{
    enum class Font { Normal, Bold, Payload };

    const char* header;
    const char* toolTip; ///< of the header
    int width;           ///< pixels at least; the last column takes what is left, if that is more
    const char* longest; ///< a text that the column shows whole, also in a wide font
    Font font;           ///< of the cells
};

inline constexpr int receiveColumnCount = 5;
/// Columns of the set that has most.
inline constexpr std::size_t mostReceiveColumns = 7;

inline constexpr std::array<ReceiveColumnTexts, receiveColumnCount> receiveColumns{{
    {"Msgs", "", 100, "", ReceiveColumnTexts::Font::Normal},
    {"Time", "", 100, "0000000000.0000", ReceiveColumnTexts::Font::Normal},
    {"Id", "", 100, "EB 0x1FFFFFFF", ReceiveColumnTexts::Font::Bold},
    {"Len", "", 50, "D64", ReceiveColumnTexts::Font::Bold},
    {"Message", "", 0, "", ReceiveColumnTexts::Font::Payload},
}};

inline constexpr std::array<ReceiveColumnTexts, mostReceiveColumns> receiveRawColumns{{
    {"Count", "Message Count", 60, "000000", ReceiveColumnTexts::Font::Normal},
    {"Id", "Id", 60, "0xdddddddd", ReceiveColumnTexts::Font::Normal},
    {"Time", "Time", 80, "0000000000.0000", ReceiveColumnTexts::Font::Normal},
    {"LCC", zul::arinc825::channelColumnToolTip, 40, errorFrameText,
     ReceiveColumnTexts::Font::Bold},
    {zul::arinc825::fieldHeader, "FID/PORT", 200, "SFID 0x7D FSB 0x0 LCL 0x0 PVT 0x0 DOC 0x3DDD",
     ReceiveColumnTexts::Font::Normal},
    {"RCI", "Redundancy Channel Identifier", 40, "D", ReceiveColumnTexts::Font::Normal},
    {"DATA", "Can Message Data", 100, "  0-> 000 000 000 000 000 000 000 000",
     ReceiveColumnTexts::Font::Payload},
}};

inline constexpr std::array<ReceiveColumnTexts, mostReceiveColumns> receiveProfileColumns{{
    {"Count", "Message Count", 80, "000000", ReceiveColumnTexts::Font::Normal},
    {"Id", "Id", 80, "0xdddddddd", ReceiveColumnTexts::Font::Normal},
    {zul::arinc825::parameterKeyHeader,
     "LCC Logical Communication Channel\nFID Function Code Identifier\nDOC Data Object Code\n"
     "LCL Local Bit\nPVT Private Bit",
     150, "$7/$7F/$3FFF/$1/$1", ReceiveColumnTexts::Font::Normal},
    {"RCI", "Redundancy Channel Identifier", 40, "D", ReceiveColumnTexts::Font::Bold},
    {"Parameter", "Parameter Name", 300, "", ReceiveColumnTexts::Font::Normal},
    {"Value", "Parameter Value", 120, "", ReceiveColumnTexts::Font::Normal},
    {"Unit", "Unit", 80, "", ReceiveColumnTexts::Font::Normal},
}};

/// The display mode that a stored number stands for in the Receive window; CAN for a number that
/// the window does not offer, since a project file may hold any.
constexpr DisplayMode receiveDisplayMode(std::int32_t stored)
{
    for (const DisplayModeTexts& texts : displayModes) {
        if (texts.receive != nullptr && static_cast<std::int32_t>(texts.mode) == stored) {
            return texts.mode;
        }
    }
    return DisplayMode::Can;
}

constexpr ReceiveColumnSet receiveColumnSet(DisplayMode mode)
{
    switch (mode) {
    case DisplayMode::Arinc825Raw:
        return ReceiveColumnSet::Arinc825Raw;
    case DisplayMode::Arinc825Profile:
        return ReceiveColumnSet::Arinc825Profile;
    case DisplayMode::Can:
    case DisplayMode::CanAerospace:
        break;
    }
    return ReceiveColumnSet::Can;
}
