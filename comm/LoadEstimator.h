#pragma once

#include "message/MessageContainer.h"

#include <cstdint>
#include <deque>

namespace comm {

/// Bits of one frame on the wire, estimated from mode and byte count without bit stuffing: 58 bits
/// around the payload in the modes 0 and 2, 80 in all others, and 9 bits a byte.
std::uint32_t frameCost(std::uint32_t mode, std::uint32_t byteCount);

/// Estimates frame rate and bus load of one interface from its batches.
class LoadEstimator
{
public:
    /// Where the figures come from.
    enum class Source {
        Frames, ///< the frames of the last second, by their own time stamps
        Status  ///< the device's own status reports
    };

    explicit LoadEstimator(double now);

    /// Takes the batch of one poll. `now` is the application clock in seconds.
    void update(const MessageContainer& batch, Source source, bool isConnected, double now);

    /// Smoothed frames per second.
    double rate() const { return m_rate; }
    /// Smoothed bits per second.
    double busBits() const { return m_busBits; }
    /// The time that the window of one second has reached, in seconds: that of the last frame, or
    /// the wall clock's advance while no frame comes.
    double busTime() const { return m_busTime; }

private:
    struct FrameCost
    {
        std::uint32_t bits;
        double time; // seconds
    };

    void countFrames(const MessageContainer& batch, double dt);
    void takeStatus(const MessageContainer& batch, double dt);

    double m_lastPollTime;
    std::deque<FrameCost> m_costs;
    std::int64_t m_bitSum = 0;
    double m_rate = 0.0;
    double m_busBits = 0.0;
    double m_busTime = 0.0;
};

} // namespace comm
