#pragma once

#include "modules/network/DatagramCodec.h"

#include <array>
#include <optional>

namespace cannetwork {

// The protocol "cannelloni", version 2, over UDP. A datagram has a head and as many frames as fit;
// numbers are big-endian:
//
// | head           | bytes |                                                              |
// |----------------|-------|--------------------------------------------------------------|
// | version        | 1     | 2                                                            |
// | kind           | 1     | 0 data; others are not used                                  |
// | number         | 1     | counts datagrams, modulo 256                                 |
// | count          | 2     | of the frames                                                |
//
// | frame          | bytes |                                                              |
// |----------------|-------|--------------------------------------------------------------|
// | identifier     | 4     | bit 31 extended, bit 30 remote, bit 29 error, as SocketCAN   |
// | length         | 1     | of the payload; bit 7 marks an FD frame                      |
// | flags          | 0, 1  | of an FD frame only: bit 0 bit-rate switch, bit 1 error state |
// | payload        | 0..64 | none in a remote frame                                       |
namespace cannelloni {

constexpr std::uint8_t version = 2;
constexpr std::uint8_t dataKind = 0;
constexpr std::size_t headBytes = 5;
constexpr std::uint32_t extendedFlag = 0x80000000U;
constexpr std::uint32_t remoteFlag = 0x40000000U;
constexpr std::uint32_t errorFlag = 0x20000000U;
constexpr std::uint8_t fdLengthFlag = 0x80;
constexpr std::uint8_t bitRateSwitchFlag = 0x01;
/// Datagrams are no longer: with the heads of UDP and IPv6 they go through an Ethernet in one
/// piece.
constexpr std::size_t maxSent = 1452;

} // namespace cannelloni

class CannelloniDecoder : public DatagramDecoder
{
public:
    DatagramFault decode(ByteView datagram, std::vector<BusFrame>& frames) override;
    std::uint64_t missing() const override { return m_missing; }

private:
    void count(std::uint8_t number);

    std::optional<std::uint8_t> m_last; ///< number of the last datagram
    std::uint64_t m_missing = 0;
};

class CannelloniEncoder : public DatagramEncoder
{
public:
    bool add(const BusFrame& frame) override;
    bool isEmpty() const override { return m_count == 0; }
    bool isComplete() const override;
    ByteView finish() override;
    void clear() override;

private:
    void put(std::uint8_t byte) { m_bytes.at(m_size++) = byte; }

    std::array<std::uint8_t, cannelloni::maxSent> m_bytes{};
    std::size_t m_size = cannelloni::headBytes;
    std::uint32_t m_count = 0;
    std::uint8_t m_number = 0;
};

} // namespace cannetwork
