#include "modules/virtual/UploadSession.h"

#include <algorithm>

namespace canvirtual {

namespace {

constexpr std::uint32_t frameBytes = 8;
constexpr std::uint32_t checksumBytes = 4;

} // namespace

std::uint32_t uploadChecksum(std::uint32_t size)
{
    constexpr std::uint32_t polynomial = 0x04C11DB7;
    constexpr std::uint32_t topBit = 0x80000000;
    std::uint32_t crc = 0xFFFFFFFF;
    // Every step shifts by a byte: those before the last four leave nothing behind.
    for (std::uint32_t i = size - std::min(size, checksumBytes); i < size; ++i) {
        std::uint32_t term = i << 24U;
        for (int bit = 0; bit < 8; ++bit) {
            term = (term & topBit) != 0 ? term << 1U ^ polynomial : term << 1U;
        }
        crc = crc << 8U ^ term;
    }
    return ~crc;
}

UploadSession::UploadSession(std::uint32_t size, const NodePacing& pacing)
    : m_size(size), m_frameCount(size / frameBytes + 1), m_pacing(pacing)
{
}

void UploadSession::note(Error error)
{
    if (m_error == Error::None) {
        m_error = error;
    }
}

void UploadSession::take(const BusFrame& frame, BusTime time)
{
    if (isComplete()) {
        return;
    }
    m_lastAt = time;
    if (m_framesTaken == 0) {
        m_firstAt = time;
    } else if (time - m_firstAt < m_planned - tolerance) {
        note(Error::TooEarly);
    }
    if (frame.byteCount != std::min(m_size - m_bytesTaken, frameBytes)) {
        note(Error::FrameSize);
    }
    plan(frame.byteCount);
    takeBytes(frame);
    ++m_framesTaken;
    if (isComplete() && m_lastBytes != uploadChecksum(m_size - std::min(m_size, checksumBytes))) {
        note(Error::Checksum);
    }
}

BusTime UploadSession::deadline() const
{
    if (m_framesTaken == 0) {
        return never;
    }
    const BusTime separation =
        std::max<BusTime>(m_pacing.messageSeparation, m_pacing.blockSeparation);
    return m_lastAt + patience + separation * millisecond;
}

void UploadSession::plan(std::uint32_t byteCount)
{
    if (m_bytesOfBlock >= m_pacing.blockSize) {
        m_planned += m_pacing.blockSeparation * millisecond;
        m_bytesOfBlock = 0;
    } else {
        m_planned += m_pacing.messageSeparation * millisecond;
    }
    m_bytesOfBlock += byteCount;
}

void UploadSession::takeBytes(const BusFrame& frame)
{
    const std::uint32_t count = std::min(frame.byteCount, frameBytes);
    for (std::uint32_t i = 0; i < count; ++i) {
        m_lastBytes = m_lastBytes << 8U | frame.data.at(i);
    }
    m_bytesTaken = std::min(m_bytesTaken + count, m_size);
}

} // namespace canvirtual
