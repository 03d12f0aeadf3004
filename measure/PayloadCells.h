#pragma once

#include "profile/ProfileParameter.h"

/// The payload's bits as a row of cells, bit 7 of byte 0 first.
inline constexpr int payloadCells = 64;

/// Whether a cell, counted from 0, belongs to the parameter: those from its end position to its
/// start position.
inline bool isPayloadCellUsed(int cell, const ProfileParameter& parameter)
{
    constexpr std::int64_t bitsPerByte = 8;
    constexpr std::int64_t topBit = 7;
    const auto cellOf = [](std::uint32_t byte, std::uint32_t bit) {
        return std::int64_t{byte} * bitsPerByte - std::int64_t{bit} + topBit;
    };
    return cell >= cellOf(parameter.eppByte, parameter.eppBit) &&
           cell <= cellOf(parameter.sppByte, parameter.sppBit);
}
