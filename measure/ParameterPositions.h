#pragma once

#include "profile/ProfileParameter.h"

#include <cstdint>
#include <optional>
#include <vector>

// What a parameter's data type says about where it lies in the payload, for its editor.

/// A place for a value: its least significant bit (start) and its most significant one (end).
struct PayloadPosition
{
    std::uint32_t startByte = 0;
    std::uint32_t startBit = 0;
    std::uint32_t endByte = 0;
    std::uint32_t endBit = 0;
};

/// The numbers that a position's selections offer, and which of them may be chosen.
struct PositionChoices
{
    std::vector<std::uint32_t> startBytes;
    std::vector<std::uint32_t> startBits;
    std::vector<std::uint32_t> endBytes;
    std::vector<std::uint32_t> endBits;
    bool isStartByteEnabled = false;
    bool isStartBitEnabled = false;
    bool isEndEnabled = false; ///< byte and bit
};

/// A data type and its name in selections.
struct DataTypeChoice
{
    const char* text;
    std::uint32_t code;
};

/// The data types of a kind in the order in which they are offered.
std::vector<DataTypeChoice> dataTypeChoices(ParameterKind kind);

/// Where a value of the data type lies by nature; none for codes that the kind does not have.
std::optional<PayloadPosition> naturalPosition(ParameterKind kind, std::uint32_t code);

/// What the position's selections offer for a data type. That of the kinds CanAerospace and Raw
/// follows from the type alone: all is offered and nothing enabled.
PositionChoices positionChoices(ParameterKind kind, std::uint32_t code);

/// The position after a change of it, with the width that the data type has.
PayloadPosition adjustedPosition(ParameterKind kind, std::uint32_t code, PayloadPosition position);

PayloadPosition positionOf(const ProfileParameter& parameter);
void setPosition(ProfileParameter& parameter, const PayloadPosition& position);
