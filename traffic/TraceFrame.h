#pragma once

#include "message/MessageCan.h"

#include <array>
#include <cstdint>
#include <vector>

/// One frame of a trace file: what the files keep of it and no more, since a trace of many million
/// frames is held in memory as a whole.
struct TraceFrame
{
    static constexpr int byteCapacity = 8;

    std::array<std::uint8_t, byteCapacity> bytes{}; ///< the first ones of the payload
    std::uint32_t id = 0;                           ///< with all its bits
    std::uint32_t seconds = 0;                      ///< first word of the time stamp
    std::uint32_t nanoseconds = 0;                  ///< second word of the time stamp
    std::uint8_t byteCount = 0;                     ///< may be more than `bytes` has
    std::uint8_t frameType = 0;                     ///< 0 data, 1 remote, 255 error
    std::uint8_t mode = 0;                          ///< 0 standard, 1 extended

    /// In seconds, as `zul::MessageCan::timeStampDouble` gives it.
    double time() const
    {
        constexpr double nanosecondsPerSecond = 1e9;
        return seconds + nanoseconds / nanosecondsPerSecond;
    }
    /// The frame as a message, with its time.
    void copyTo(zul::MessageCan& message) const;
};

static_assert(sizeof(TraceFrame) == 24, "a trace of many million frames must fit into memory");

/// The frames of one trace file, in the order of the file.
struct TraceFrames
{
    std::vector<TraceFrame> frames;
    double firstTime = 0.0; ///< of the first frame, seconds
    double lastTime = 0.0;  ///< of the last frame, seconds; may lie before the first

    void append(const TraceFrame& frame);
};
