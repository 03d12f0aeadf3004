#pragma once

#include <array>
#include <cstdint>

namespace canvirtual {

/// Clocks that the registers divide. All rates below are in bits per second and rounded to the
/// nearest integer; every 32-bit register value gives a positive one.
constexpr std::int64_t btrClockHz = 16'000'000;
constexpr std::int64_t fdClockHz = 80'000'000;

/// Bits that the registers have; the others are ignored and read as 0.
constexpr std::uint32_t btrMask = 0x0000FFFF;
constexpr std::uint32_t nbtpMask = 0xFFFFFF7F;
constexpr std::uint32_t dbtpMask = 0x009F1FFF;
constexpr std::uint32_t tdcrMask = 0x00007F7F;

constexpr std::int32_t roundedRate(std::int64_t clockHz, std::int64_t divisor)
{
    return static_cast<std::int32_t>((clockHz + divisor / 2) / divisor);
}

/// Bit rate of the SJA1000's bit timing registers, BTR0 in the bits 15 to 8, BTR1 in 7 to 0:
/// | 15..14 SJW | 13..8 BRP | 7 SAM | 6..4 TSEG2 | 3..0 TSEG1 |, each stored minus one.
constexpr std::int32_t bitRateFromBtr(std::uint32_t btr)
{
    const std::int64_t prescaler = std::int64_t{2} * ((btr >> 8U & 0x3FU) + 1U);
    const std::int64_t quanta = (btr & 0xFU) + (btr >> 4U & 0x7U) + 3U;
    return roundedRate(btrClockHz, prescaler * quanta);
}

/// Bit rate of the M_CAN register NBTP:
/// | 31..25 NSJW | 24..16 NBRP | 15..8 NTSEG1 | 6..0 NTSEG2 |, each stored minus one.
constexpr std::int32_t bitRateFromNbtp(std::uint32_t nbtp)
{
    const std::int64_t prescaler = (nbtp >> 16U & 0x1FFU) + 1U;
    const std::int64_t quanta = (nbtp >> 8U & 0xFFU) + (nbtp & 0x7FU) + 3U;
    return roundedRate(fdClockHz, prescaler * quanta);
}

/// Bit rate of the M_CAN register DBTP:
/// | 23 TDC | 20..16 DBRP | 12..8 DTSEG1 | 7..4 DTSEG2 | 3..0 DSJW |, all but TDC stored minus one.
constexpr std::int32_t bitRateFromDbtp(std::uint32_t dbtp)
{
    const std::int64_t prescaler = (dbtp >> 16U & 0x1FU) + 1U;
    const std::int64_t quanta = (dbtp >> 8U & 0x1FU) + (dbtp >> 4U & 0xFU) + 3U;
    return roundedRate(fdClockHz, prescaler * quanta);
}

constexpr std::uint32_t packNbtp(std::uint32_t nsjw, std::uint32_t nbrp, std::uint32_t ntseg1,
                                 std::uint32_t ntseg2)
{
    return nsjw << 25U | nbrp << 16U | ntseg1 << 8U | ntseg2;
}

constexpr std::uint32_t packDbtp(std::uint32_t tdc, std::uint32_t dbrp, std::uint32_t dtseg1,
                                 std::uint32_t dtseg2, std::uint32_t dsjw)
{
    return tdc << 23U | dbrp << 16U | dtseg1 << 8U | dtseg2 << 4U | dsjw;
}

/// A usual register value and what it gives; `samplePoint` in percent.
struct TimingPreset
{
    std::uint32_t value = 0;
    std::int32_t bitRate = 0;
    const char* samplePoint = "";
};

/// For each bit rate the first preset is the one that a choice of the bit rate sets.
constexpr std::array<TimingPreset, 13> btrPresets = {{
    {0x0014, 1'000'000, "75"},
    {0x0016, 800'000, "80"},
    {0x001C, 500'000, "87.5"},
    {0x003A, 500'000, "75"},
    {0x011C, 250'000, "87.5"},
    {0x013A, 250'000, "75"},
    {0x031C, 125'000, "87.5"},
    {0x033A, 125'000, "75"},
    {0x041C, 100'000, "87.5"},
    {0x043A, 100'000, "75"},
    {0x051C, 83'333, "87.5"},
    {0x091C, 50'000, "87.5"},
    {0x181C, 20'000, "87.5"},
}};

constexpr std::array<TimingPreset, 13> nbtpPresets = {{
    {packNbtp(15, 0, 62, 15), 1'000'000, "80"},
    {packNbtp(9, 0, 68, 9), 1'000'000, "87.5"},
    {packNbtp(19, 0, 78, 19), 800'000, "80"},
    {packNbtp(31, 0, 126, 31), 500'000, "80"},
    {packNbtp(19, 0, 138, 19), 500'000, "87.5"},
    {packNbtp(31, 1, 126, 31), 250'000, "80"},
    {packNbtp(19, 1, 138, 19), 250'000, "87.5"},
    {packNbtp(31, 3, 126, 31), 125'000, "80"},
    {packNbtp(19, 3, 138, 19), 125'000, "87.5"},
    {packNbtp(31, 4, 126, 31), 100'000, "80"},
    {packNbtp(31, 5, 126, 31), 83'333, "80"},
    {packNbtp(31, 9, 126, 31), 50'000, "80"},
    {packNbtp(31, 24, 126, 31), 20'000, "80"},
}};

constexpr std::array<TimingPreset, 6> dbtpPresets = {{
    {packDbtp(0, 3, 30, 7, 7), 500'000, "80"},
    {packDbtp(0, 1, 30, 7, 7), 1'000'000, "80"},
    {packDbtp(0, 0, 30, 7, 7), 2'000'000, "80"},
    {packDbtp(1, 0, 14, 3, 3), 4'000'000, "80"},
    {packDbtp(1, 0, 10, 3, 3), 5'000'000, "75"},
    {packDbtp(1, 0, 6, 1, 1), 8'000'000, "80"},
}};

/// Offsets of the transmitter delay compensation; the last field names the data bit rate.
constexpr std::array<TimingPreset, 5> tdcrPresets = {{
    {0x0000, 0, ""},
    {0x2000, 2'000'000, "80"},
    {0x1000, 4'000'000, "80"},
    {0x0C00, 5'000'000, "75"},
    {0x0800, 8'000'000, "80"},
}};

/// The preset of `bitRate`, or else the register value that comes nearest to it.
std::uint32_t btrForBitRate(std::int32_t bitRate);
std::uint32_t nbtpForBitRate(std::int32_t bitRate);

} // namespace canvirtual
