#pragma once

#include "traffic/MessageModes.h"

#include <QString>

#include <cstdint>

/// What the message editors of a Transmit window decide: ranges, and the payload of 4 rows of 16
/// bytes. Modes are values of `zul::MessageCan::EMsgMode`; a file may hold others.
namespace messageentry {

inline constexpr int payloadRows = 4;
inline constexpr int bytesPerRow = 16;
inline constexpr int payloadBytes = payloadRows * bytesPerRow;

/// Whether frames of the mode carry identifiers of 29 bits; false for a mode that is none.
constexpr bool isExtended(std::uint32_t mode)
{
    return mode < messageModes.size() && messageModes[mode].idBits == 29;
}

/// The identifier as the mode can carry it: a larger one becomes the largest.
std::uint32_t boundedId(std::uint32_t id, std::uint32_t mode);

/// The largest number that the entry of the identifier takes. Deliberate: with 29 bits it is one
/// more than an identifier can be.
int idEntryMaximum(std::uint32_t mode);

/// The mode as the editor of ARINC 825 identifiers offers it: one that has no 29 bits becomes 1.
constexpr std::uint32_t arinc825Mode(std::uint32_t mode)
{
    constexpr std::uint32_t extended = 1;
    return isExtended(mode) ? mode : extended;
}

/// Rows of the payload that are shown, 1 to 4. The first is there also for an empty payload.
int shownRows(std::uint32_t byteCount);

/// Height of an editor with those rows, in pixels. One row stands in the height of two.
int editorHeight(std::uint32_t byteCount);

/// A byte of the payload, "0x%02X" or "%d".
QString byteText(std::uint8_t value, std::int32_t numberType);

/// A byte that was typed: a number out of range becomes the nearest that fits.
std::uint8_t boundedByte(qlonglong value);

/// A byte that was typed, from the low 8 bits of the number.
constexpr std::uint8_t lowByte(qlonglong value)
{
    return static_cast<std::uint8_t>(static_cast<qulonglong>(value) & 0xFFU);
}

} // namespace messageentry
