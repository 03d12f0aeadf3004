#pragma once

#include "message/MessageContainer.h"
#include "project/ObjectReplay.h"
#include "traffic/TraceFrame.h"

#include <QString>

#include <cstdint>

/// What a Replay window does: it plays the frames of a trace file in their recorded timing.
/// Positions are kept as trace time, in seconds from the first frame on; `now` is always the
/// application clock in seconds.
class Replay
{
public:
    enum class State : std::int32_t { Stopped = 0, Paused = 1, Running = 2 };

    static constexpr int tickPeriodMs = 10; ///< of the timer, which runs in state `Running` alone
    static constexpr int sliderMaximum = 1000; ///< the slider goes from 0 to this
    static constexpr int sliderTickInterval = 250;
    /// What the position display shows until its first refresh.
    static constexpr const char* firstPositionText = "00:00:00.000";
    static constexpr const char* fileDialogTitle = "Open Trace File";
    static constexpr const char* fileDialogFilter = "Trace File (*.zlb *.CAN);;All Files (*.*)";
    /// Frames with a larger identifier go out as 29-bit ones, since files of the Trace window do
    /// not keep the mode. Deliberate: that takes in 2032 to 2047, which 11 bits hold too.
    static constexpr std::uint32_t maxStoredModeId = 2031;

    /// Most frames of one tick; those that are due beyond it follow at the next ones. No bus brings
    /// forth as many, but a file that is no trace may say that all of its frames are due at once.
    static constexpr int maxFramesPerTick = 100'000;

    /// Which controls can be used.
    struct Controls
    {
        bool load;
        bool start;
        bool stop;
        bool slider;
        const char* startText;
    };

    /// What one tick gave.
    struct Tick
    {
        MessageContainer batch;  ///< the frames that were due, addressed
        bool isToBeSent = false; ///< the batch has frames and the output is on
        bool hasStopped = false; ///< the file has ended: the timer stops, controls change
    };

    /// Reads a file in place of the one before, as `readTraceFile` does.
    ///
    /// Deliberate: neither the position nor, if the file has no frames, first and last time change.
    void load(const QString& path);

    /// "Start" and "Pause": runs if it does not, else pauses.
    void startOrPause(double now);
    /// Back to the start of the file.
    void stop();
    /// Goes to `position` thousandths of the span of the file: to the first frame that is not
    /// before it, or to the end if there is none.
    void seek(int position);
    /// Plays what has become due since the last tick; nothing unless the state is `Running`. All
    /// frames of one tick are one batch, in the order of the file, each with a time stamp of 0.
    /// With the output off they count as sent all the same.
    ///
    /// At the end of the file the replay stops, or begins again at the next tick.
    Tick tick(double now, const ReplaySettings& settings);

    State state() const { return m_state; }
    bool isRunning() const { return m_state == State::Running; }
    /// Full path of the loaded file; empty while there is none.
    const QString& fileName() const { return m_fileName; }
    /// What the file dialog starts with.
    const QString& lastDirectory() const { return m_fileName; }
    /// The part of the path after the last "/".
    QString shownFileName() const;
    Controls controls() const;

    /// Frames played since this was made; wraps at 32 bits.
    std::uint32_t sentCount() const { return m_sentCount; }
    /// Index of the next frame.
    std::uint32_t position() const { return m_position; }
    /// Trace time played so far, in seconds.
    double elapsed() const { return m_elapsed; }
    const TraceFrames& trace() const { return m_trace; }

    /// Deliberate: always empty: the display of the time goes blank at its first refresh.
    static QString positionText() { return {}; }
    /// Truncated and within 0 to `sliderMaximum`; 0 for a file that spans no time.
    int sliderPosition() const;

private:
    bool isAtEnd() const { return m_position >= m_trace.frames.size(); }
    double offsetOf(const TraceFrame& frame) const { return frame.time() - m_trace.firstTime; }
    void playDueFrames(const ReplaySettings& settings, MessageContainer& batch);
    void rewind();

    TraceFrames m_trace;
    QString m_fileName;
    State m_state = State::Stopped;
    std::uint32_t m_position = 0;
    std::uint32_t m_sentCount = 0;
    double m_elapsed = 0.0;
    double m_clockLast = 0.0;
};
