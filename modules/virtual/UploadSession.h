#pragma once

#include "modules/virtual/NodeSettings.h"
#include "modules/virtual/Vocabulary.h"

#include <cstdint>

namespace canvirtual {

/// The server's side of one upload: which data are expected, and whether what came is right.
class UploadSession
{
public:
    /// What is wrong with the data; the numbers are told to the client.
    enum class Error : std::uint8_t {
        None = 0,
        FrameSize = 1, ///< a frame has another byte count than its place asks
        TooEarly = 2,  ///< a frame came sooner than the pacing allows
        Checksum = 3,
        Number = 4 ///< the data ended before all were there
    };

    /// A frame may come sooner than it should by as much as other traffic, such as a burst, may
    /// have held up the first one.
    static constexpr BusTime tolerance = 200 * millisecond;
    /// So long after a frame the next one is expected, besides the separations.
    static constexpr BusTime patience = second;

    /// Expects `size` bytes, checksum included.
    UploadSession(std::uint32_t size, const NodePacing& pacing);

    /// Takes the next frame, which left the bus at `time`.
    void take(const BusFrame& frame, BusTime time);

    /// When waiting for the next frame ends; `never` before the first one.
    BusTime deadline() const;
    bool isComplete() const { return m_framesTaken == m_frameCount; }
    std::uint32_t framesTaken() const { return m_framesTaken; }
    std::uint32_t frameCount() const { return m_frameCount; }
    /// The first that was found.
    Error error() const { return m_error; }

private:
    void note(Error error);
    void takeBytes(const BusFrame& frame);
    void plan(std::uint32_t byteCount);

    std::uint32_t m_size;
    std::uint32_t m_frameCount;
    NodePacing m_pacing;
    std::uint32_t m_framesTaken = 0;
    std::uint32_t m_bytesTaken = 0;
    std::uint32_t m_bytesOfBlock = 0;
    BusTime m_firstAt = 0;
    BusTime m_lastAt = 0;
    BusTime m_planned = 0;         ///< of the next frame, after the first one
    std::uint32_t m_lastBytes = 0; ///< the last four, which are the checksum in the end
    Error m_error = Error::None;
};

/// The checksum that a client appends to `size` bytes; it depends on their number alone.
std::uint32_t uploadChecksum(std::uint32_t size);

} // namespace canvirtual
