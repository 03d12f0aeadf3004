#pragma once

#include "modules/virtual/FlightSignals.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace canvirtual {

/// ARINC 825 data types; the numbers are their codes.
enum class ArincType {
    NoData = 0,
    Enum = 1,
    Char = 2,
    UChar = 3,
    AChar = 4,
    Short = 5,
    UShort = 6,
    Long = 7,
    ULong = 8,
    Float = 9,
    Long64 = 10,
    ULong64 = 11,
    Double = 12,
    Opaque = 13,
    Bool = 14,
    Bcd = 15
};

/// CANaerospace data types; the numbers are the codes in byte 1 of a frame.
enum class CanasType {
    NoData = 0,
    Error = 1,
    Float = 2,
    Long = 3,
    ULong = 4,
    BLong = 5,
    Short = 6,
    UShort = 7,
    BShort = 8,
    Char = 9,
    UChar = 10,
    BChar = 11,
    Short2 = 12,
    UShort2 = 13,
    BShort2 = 14,
    Char4 = 15,
    UChar4 = 16,
    BChar4 = 17,
    Char2 = 18,
    UChar2 = 19,
    BChar2 = 20,
    MemId = 21,
    ChkSum = 22,
    AChar = 23,
    AChar2 = 24,
    AChar4 = 25,
    Char3 = 26,
    UChar3 = 27,
    BChar3 = 28,
    AChar3 = 29
};

/// Where a parameter begins in the payload. Types of whole bytes leave `bit` and `width` at 0, the
/// others lie within one byte, from `bit` upwards.
struct BytePosition
{
    int byte = 0;
    int bit = 0;
    int width = 0;
};

/// One parameter of an ARINC 825 frame. Consecutive rows of one identifier make one frame.
struct ArincParameter
{
    const char* name;
    std::uint32_t id;
    int byteCount; ///< of the frame
    int rateHz;
    ArincType type;
    BytePosition position;
    int unit; ///< code of the ARINC 825 unit table
    double min;
    double max;
    Signal value;
};

/// One CANaerospace frame. Types of several elements show the value at intervals of half a second.
struct CanasParameter
{
    const char* name;
    std::uint32_t id;
    std::uint8_t nodeId;
    CanasType type;
    std::uint8_t serviceCode;
    int rateHz;
    const char* unit;
    Signal value;
};

/// Redundancy channels.
enum class Rci : std::uint32_t { A = 0, B = 1, C = 2, D = 3 };

/// Identifier of a data channel (EEC 0, NOC 2, UDC 5, FMC 7), function status, local and private
/// bits 0: | 28..26 LCC | 25..19 FID | 15..2 DOC | 1..0 RCI |.
constexpr std::uint32_t dataId(std::uint32_t lcc, std::uint32_t fid, std::uint32_t doc,
                               Rci rci = Rci::A)
{
    return lcc << 26U | fid << 19U | doc << 2U | static_cast<std::uint32_t>(rci);
}

/// Identifier of a service channel (NSC 4, TMC 6):
/// | 28..26 LCC | 25..19 client FID | 18 SMT | 15..9 server FID | 8..2 SID | 1..0 RCI |.
constexpr std::uint32_t serviceId(std::uint32_t lcc, std::uint32_t client, std::uint32_t smt,
                                  std::uint32_t server, std::uint32_t sid, Rci rci = Rci::A)
{
    return lcc << 26U | client << 19U | smt << 18U | server << 9U | sid << 2U |
           static_cast<std::uint32_t>(rci);
}

/// Identifier of the directed channel (DMC 3):
/// | 28..26 LCC | 25..19 source | 18..12 destination | 11..6 source port | 5..0 port |.
constexpr std::uint32_t directedId(std::uint32_t source, std::uint32_t destination,
                                   std::uint32_t sourcePort, std::uint32_t destinationPort)
{
    return 3U << 26U | source << 19U | destination << 12U | sourcePort << 6U | destinationPort;
}

constexpr std::size_t arincParameterCount = 88;
constexpr std::size_t canasParameterCount = 48;

/// All that the flight demonstration sends. `docs/demo-traffic.md` lists it for the user.
extern const std::array<ArincParameter, arincParameterCount> arincParameters;
extern const std::array<CanasParameter, canasParameterCount> canasParameters;

/// The eight letters of the flight number, sent as ACHAR parameters.
constexpr const char* flightNumber = "ZUL00825";

} // namespace canvirtual
