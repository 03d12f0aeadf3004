#pragma once

#include "message/MessageContainer.h"

#include <cstdint>
#include <string>

namespace zul {
class MessageCan;
}

namespace bench {

/// Which number of a frame counts the frames of its sender; the values are those of the virtual
/// bus's property "Scenario".
enum class Sequence : int {
    Payload = 3,   ///< the first four bytes, most significant first
    Identifier = 4 ///< the identifier, modulo 2048
};

/// Follows the frames of one interface and finds every gap in their numbers.
class SequenceCheck
{
public:
    explicit SequenceCheck(Sequence sequence);

    void take(const MessageContainer& batch);

    std::uint64_t frames() const { return m_frames; }
    /// Frames that are missing between those that came. A loss of exactly 2048 frames does not show
    /// in identifiers, but in the frames a second of bus time.
    std::uint64_t missing() const { return m_missing; }
    /// Frames that came out of order or twice.
    std::uint64_t misplaced() const { return m_misplaced; }
    /// Time between the first and the last frame, by their own stamps, in seconds.
    double busSeconds() const { return m_lastTime - m_firstTime; }
    /// "Lost frames" and "Skipped [s]" of the device's last report.
    const std::string& lostByDevice() const { return m_lostByDevice; }
    const std::string& skippedSeconds() const { return m_skippedSeconds; }

private:
    void takeFrame(const zul::MessageCan& frame);

    Sequence m_sequence;
    std::uint64_t m_frames = 0;
    std::uint64_t m_missing = 0;
    std::uint64_t m_misplaced = 0;
    std::uint32_t m_expected = 0; // number of the next frame
    double m_firstTime = 0.0;
    double m_lastTime = 0.0;
    std::string m_lostByDevice = "?";
    std::string m_skippedSeconds = "?";
};

} // namespace bench
