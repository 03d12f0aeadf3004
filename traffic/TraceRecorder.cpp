#include "traffic/TraceRecorder.h"

#include "core/Latin1.h"
#include "project/Filter.h"
#include "traffic/TraceLayout.h"
#include "traffic/TraceLine.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <cstdio>

using zul::MessageCan;

namespace {

constexpr const char* stoppedText = "<b><font color=\"#666666\"> Trace Stopped</font></b>";
constexpr const char* waitText = "<b><font color=\"#888800\"> Trace Wait</font></b>";
constexpr const char* activeText = "<b><font color=\"#00AA00\"> Trace Active</font></b>";
constexpr double megabytesPerByte = 9.53e-7;

bool isFromInterface(const MessageContainer& batch, const QString& name)
{
    const std::string& source = batch.srcDest();
    return name == allInterfacesName() ||
           name == QLatin1String(source.data(), static_cast<int>(source.size()));
}

} // namespace

TraceRecorder::Update TraceRecorder::receive(const MessageContainer& batch,
                                             const TraceSettings& settings, const Filter& filter,
                                             const ProfileStore& store)
{
    Update update;
    if (!isFromInterface(batch, settings.inputInterface)) {
        return update;
    }
    update.isTaken = true;
    for (const auto& message : batch.messages()) {
        const auto* frame = message_cast<MessageCan>(message.get());
        if (frame == nullptr) {
            continue;
        }
        ++m_receivedTotal;
        if (!settings.inputOn || !filter.matches(frame->id())) {
            continue;
        }
        if (update.hasLines) {
            update.html += traceLineSeparator;
        }
        update.hasLines = true;
        takeFrame(*frame, settings, store, update.html);
    }
    return update;
}

void TraceRecorder::takeFrame(const MessageCan& frame, const TraceSettings& settings,
                              const ProfileStore& store, std::string& html)
{
    const std::size_t start = html.size();
    appendTraceScreenLine(html, frame, m_lineNumber, settings.displayMode, settings.numberType,
                          store);
    if (m_state == State::Active && m_files.isOpen()) {
        if (areTraceLinesAlike(frame, settings.displayMode, settings.traceFormat)) {
            m_line.assign(html, start);
        } else {
            m_line.clear();
            appendTraceFileLine(m_line, frame, m_lineNumber, settings.traceFormat,
                                settings.numberType, store);
        }
        m_files.write(frame, m_line);
        ++m_recordCount;
        m_byteCount += trace_layout::recordSize;
    }
    ++m_lineNumber;
}

bool TraceRecorder::startOrStop(const std::string& directory, double now)
{
    if (m_state != State::Stopped) {
        m_files.close();
        m_state = State::Stopped;
        return true;
    }
    if (!openFiles(directory, now)) {
        return false;
    }
    m_state = State::Active;
    return true;
}

bool TraceRecorder::openFiles(const std::string& directory, double now)
{
    constexpr double millisecondsPerSecond = 1000.0;
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(qRound64(now * millisecondsPerSecond));
    m_recordCount = 0;
    m_byteCount = firstByteCount;
    m_baseName = baseNameOf(directory, start);
    return m_files.open(m_baseName, start);
}

std::string TraceRecorder::baseNameOf(const std::string& directory, const QDateTime& start)
{
    // Not in the digits of the user's language, which Latin-1 may not have.
    const QString date = QLocale::c().toString(start, QStringLiteral("yyyyMMdd_hhmmss_zzz"));
    return directory + "/zultrace_" + zul::toLatin1(date);
}

int TraceRecorder::surplusBlocks(int blockCount, int characterCount, int most)
{
    if (blockCount > maxBlocks) {
        return blockCount - blocksAfterCut;
    }
    if (characterCount > most) {
        // As large a part of the view as is cut off from too many blocks; the newest one stays.
        const int part = blockCount / (maxBlocks / (maxBlocks - blocksAfterCut));
        return std::min(std::max(part, 1), blockCount - 1);
    }
    return 0;
}

const char* TraceRecorder::buttonText() const
{
    return m_state == State::Stopped ? "Start Trace" : "Stop Trace";
}

std::string TraceRecorder::statusText(State state) const
{
    if (state != State::Active) {
        return state == State::Stopped ? stoppedText : waitText;
    }
    std::array<char, 64> counts{};
    std::snprintf(counts.data(), counts.size(), "  %d / %.1f MB   -   ",
                  static_cast<int>(m_recordCount),
                  static_cast<double>(m_byteCount) * megabytesPerByte);
    const QString name = zul::fromLatin1(m_baseName).toHtmlEscaped();
    return activeText + (counts.data() + zul::toLatin1(name));
}

std::string TraceRecorder::failureText() const
{
    return "Could not open trace file <" + m_baseName + "> !\nCheck your path under preferences !";
}
