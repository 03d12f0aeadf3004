#include "modules/virtual/FrameLength.h"

#include <algorithm>

namespace canvirtual {

namespace {

constexpr int crc15Bits = 15;
constexpr int ackAndEndBits = 1 + 1 + 7; // ACK slot, ACK delimiter, end of frame
constexpr int crcDelimiterBits = 1;
constexpr int maxEqualBits = 5;

// Stuff count (4) and CRC, with one fixed stuff bit before them and after every fourth bit.
constexpr int fdCrc17Bits = 4 + 17 + 6;
constexpr int fdCrc21Bits = 4 + 21 + 7;
constexpr std::uint32_t maxCrc17Bytes = 16;

/// Takes a frame's bits in the order of the wire and counts them with their stuff bits.
class BitCounter
{
public:
    /// Bits so far; a stuff bit counts when the bit after it comes, or with `flush`.
    int count() const { return m_count; }

    std::uint32_t crc15() const { return m_crc; }

    /// Counts the stuff bit that is due after the last bit, if one is.
    void flush()
    {
        if (m_run == maxEqualBits) {
            ++m_count;
            m_last = !m_last;
            m_run = 1;
        }
    }

    void push(bool bit)
    {
        flush();
        m_run = bit == m_last ? m_run + 1 : 1;
        m_last = bit;
        ++m_count;
        // CRC-15 of ISO 11898-1; it does not see the stuff bits.
        const bool feedback = bit != ((m_crc >> 14U & 1U) != 0);
        m_crc = (m_crc << 1U & 0x7FFFU) ^ (feedback ? 0x4599U : 0U);
    }

    /// The low `width` bits of `value`, most significant first.
    void push(std::uint32_t value, int width)
    {
        for (int bit = width - 1; bit >= 0; --bit) {
            push((value >> static_cast<unsigned>(bit) & 1U) != 0);
        }
    }

private:
    std::uint32_t m_crc = 0;
    int m_count = 0;
    int m_run = 0;
    bool m_last = true; // the bus is recessive before the start bit
};

void pushArbitration(BitCounter& bits, const BusFrame& frame)
{
    const bool remote = frame.type == FrameType::Remote;
    bits.push(false);
    if (isExtended(frame.mode)) {
        bits.push(frame.id >> 18U, 11);
        bits.push(3U, 2); // SRR, IDE
        bits.push(frame.id, 18);
        bits.push(remote);
    } else {
        bits.push(frame.id, 11);
        bits.push(remote);
        bits.push(false); // IDE
    }
}

void pushData(BitCounter& bits, const BusFrame& frame)
{
    for (std::uint32_t index = 0; index < frame.byteCount; ++index) {
        bits.push(frame.data[index], 8);
    }
}

FrameBits classicFrameBits(const BusFrame& frame)
{
    BitCounter bits;
    pushArbitration(bits, frame);
    bits.push(0U, isExtended(frame.mode) ? 2 : 1); // reserved
    bits.push(dataLengthCode(frame.byteCount), 4);
    if (frame.type == FrameType::Data) {
        pushData(bits, frame);
    }
    bits.push(bits.crc15(), crc15Bits);
    bits.flush();
    return {bits.count() + crcDelimiterBits + ackAndEndBits, 0};
}

FrameBits fdFrameBits(const BusFrame& frame)
{
    const bool switched = hasBitRateSwitch(frame.mode);
    BitCounter bits;
    pushArbitration(bits, frame);
    bits.push(2U, 2); // FDF, reserved
    bits.push(switched);
    const int untilSwitch = bits.count();
    bits.push(false); // ESI
    bits.push(dataLengthCode(frame.byteCount), 4);
    pushData(bits, frame);
    // No flush: after five equal bits at the end the first fixed stuff bit does the same service.
    const int crcBits = frame.byteCount <= maxCrc17Bytes ? fdCrc17Bits : fdCrc21Bits;
    const int switchable = bits.count() - untilSwitch + crcBits + crcDelimiterBits;
    if (!switched) {
        return {untilSwitch + switchable + ackAndEndBits, 0};
    }
    return {untilSwitch + ackAndEndBits, switchable};
}

BusTime spanOf(int bits, std::int32_t rate)
{
    return (bits * second + rate - 1) / rate;
}

} // namespace

FrameBits frameBits(const BusFrame& frame)
{
    return isFd(frame.mode) ? fdFrameBits(frame) : classicFrameBits(frame);
}

FrameBits errorFrameBits(int sentBits, int echoBits)
{
    constexpr int flagBits = 6;
    constexpr int delimiterBits = 8;
    return {std::max(sentBits, 1) + flagBits + std::clamp(echoBits, 0, flagBits) + delimiterBits,
            0};
}

BusTime duration(const FrameBits& bits, const BusRates& rates)
{
    return spanOf(bits.nominal, rates.nominal) +
           (bits.data > 0 ? spanOf(bits.data, rates.data) : 0);
}

std::uint32_t arbitrationPriority(const BusFrame& frame)
{
    // | 31..21 base identifier | 20 RTR or SRR | 19 IDE | 18..1 extension | 0 RTR |
    const std::uint32_t remote = frame.type == FrameType::Remote ? 1U : 0U;
    if (!isExtended(frame.mode)) {
        return frame.id << 21U | remote << 20U;
    }
    const std::uint32_t base = frame.id >> 18U;
    const std::uint32_t extension = frame.id & 0x3FFFFU;
    return base << 21U | 3U << 19U | extension << 1U | remote;
}

} // namespace canvirtual
