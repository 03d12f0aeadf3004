#include "traffic/Replay.h"

#include "core/Latin1.h"
#include "traffic/TraceFileReader.h"

#include <algorithm>
#include <cmath>
#include <memory>

using zul::MessageCan;

namespace {

SmartPtr<Message> messageOf(const TraceFrame& frame)
{
    auto message = std::make_unique<MessageCan>();
    frame.copyTo(*message);
    message->setTimeStamp(0.0);
    if (frame.id > Replay::maxStoredModeId) {
        message->setMode(MessageCan::EMsgMode::Extended);
    }
    return SmartPtr<Message>(message.release());
}

} // namespace

void Replay::load(const QString& path)
{
    m_fileName = path;
    readTraceFile(path, m_trace);
}

void Replay::startOrPause(double now)
{
    if (m_state == State::Running) {
        m_state = State::Paused;
        return;
    }
    m_clockLast = now;
    m_state = State::Running;
}

void Replay::stop()
{
    m_state = State::Stopped;
    rewind();
}

void Replay::seek(int position)
{
    m_elapsed = (m_trace.lastTime - m_trace.firstTime) * position / double{sliderMaximum};
    const auto& frames = m_trace.frames;
    const auto isReached = [this](const TraceFrame& frame) { return offsetOf(frame) >= m_elapsed; };
    // Times need not ascend, so every frame before is looked at.
    const auto found = std::find_if(frames.begin(), frames.end(), isReached);
    m_position = static_cast<std::uint32_t>(found - frames.begin());
}

Replay::Tick Replay::tick(double now, const ReplaySettings& settings)
{
    Tick tick;
    if (m_state != State::Running) {
        return tick;
    }
    m_elapsed += now - m_clockLast;
    m_clockLast = now;
    playDueFrames(settings, tick.batch);
    tick.isToBeSent = tick.batch.size() > 0;
    if (isAtEnd()) {
        tick.hasStopped = !settings.autoRepeat;
        m_state = settings.autoRepeat ? State::Running : State::Stopped;
        rewind();
    }
    return tick;
}

void Replay::playDueFrames(const ReplaySettings& settings, MessageContainer& batch)
{
    batch.setSrcDest(zul::toLatin1(settings.outputInterface));
    for (int played = 0; played < maxFramesPerTick && !isAtEnd(); ++played) {
        const TraceFrame& frame = m_trace.frames[m_position];
        if (!(m_elapsed > offsetOf(frame))) {
            return;
        }
        if (settings.outputOn) {
            batch.addMessage(messageOf(frame));
        }
        ++m_sentCount;
        ++m_position;
    }
}

void Replay::rewind()
{
    m_position = 0;
    m_elapsed = 0.0;
}

QString Replay::shownFileName() const
{
    return m_fileName.mid(m_fileName.lastIndexOf(QLatin1Char('/')) + 1);
}

Replay::Controls Replay::controls() const
{
    constexpr const char* start = "Start";
    if (m_fileName.isEmpty()) {
        return {true, false, false, false, start};
    }
    switch (m_state) {
    case State::Stopped:
        return {true, true, false, false, start};
    case State::Paused: // Deliberate: a paused replay cannot be stopped directly
        return {false, true, false, true, start};
    case State::Running:
        break;
    }
    return {false, true, true, false, "Pause"};
}

int Replay::sliderPosition() const
{
    const double position = m_elapsed / (m_trace.lastTime - m_trace.firstTime) * sliderMaximum;
    if (!std::isfinite(position)) {
        return 0;
    }
    // Not enough to be seen, but without it rounding would set a slider that was moved back by one.
    constexpr double roundingError = 1e-6;
    return static_cast<int>(std::clamp(position + roundingError, 0.0, double{sliderMaximum}));
}
