#include "tests/unit/traffic/TraceTestFrames.h"

#include <QFile>

#include <memory>
#include <numeric>
#include <tuple>

namespace zul::test {

QString traceDataPath(const QString& name)
{
    return QStringLiteral(ZUL_TEST_DATA "/trace/") + name;
}

QByteArray traceData(const QString& name)
{
    QFile file(traceDataPath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

MessageCan traceFrame(std::uint32_t id, double seconds, std::initializer_list<std::uint8_t> bytes)
{
    MessageCan frame;
    frame.setId(id);
    frame.setTimeStamp(seconds);
    frame.setByteCount(static_cast<std::uint32_t>(bytes.size()));
    std::int32_t index = 0;
    for (const std::uint8_t byte : bytes) {
        frame.msg()[index++] = byte;
    }
    return frame;
}

namespace {

using TimeStamp = MessageCan::TimeStamp;

MessageCan fdFrame(std::uint32_t id, std::int32_t byteCount, MessageCan::EMsgMode mode,
                   const TimeStamp& time)
{
    MessageCan frame = traceFrame(id, 0.0);
    frame.setTimeStamp(time);
    frame.setMode(mode);
    frame.setByteCount(static_cast<std::uint32_t>(byteCount));
    for (std::int32_t i = 0; i < byteCount; ++i) {
        frame.msg()[i] = static_cast<std::uint8_t>(i + 1);
    }
    return frame;
}

} // namespace

std::vector<MessageCan> goldenFrames()
{
    MessageCan standard = traceFrame(0x123, 0.0, {1, 2});
    standard.setTimeStamp(TimeStamp{12, 345'678'901});
    standard.setChannel(1);
    MessageCan extended = traceFrame(0x1234567, 12.5, {10, 20, 30, 40, 50, 60, 70, 80});
    extended.setMode(MessageCan::EMsgMode::Extended);
    extended.setChannel(0x10002);
    MessageCan remote = traceFrame(0x7FF, 13.0);
    remote.setFrameType(MessageCan::EFrameType::Remote);
    remote.setByteCount(4);
    MessageCan error = traceFrame(99, 13.001, {9});
    error.setFrameType(MessageCan::EFrameType::Error);
    return {standard,
            extended,
            remote,
            error,
            fdFrame(100, 12, MessageCan::EMsgMode::StandardFd, {14, 0}),
            fdFrame(2032, 20, MessageCan::EMsgMode::ExtendedFdBrs, {4294967295U, 999'999'999})};
}

MessageContainer traceBatch(const std::vector<MessageCan>& frames, const char* source)
{
    MessageContainer batch;
    batch.setSrcDest(source);
    for (const MessageCan& frame : frames) {
        batch.addMessage(SmartPtr<Message>(std::make_unique<MessageCan>(frame).release()));
    }
    return batch;
}

} // namespace zul::test

bool operator==(const TraceFrame& left, const TraceFrame& right)
{
    const auto tied = [](const TraceFrame& frame) {
        return std::tie(frame.bytes, frame.id, frame.seconds, frame.nanoseconds, frame.byteCount,
                        frame.frameType, frame.mode);
    };
    return tied(left) == tied(right);
}

std::ostream& operator<<(std::ostream& stream, const TraceFrame& frame)
{
    stream << "id " << frame.id << " mode " << int{frame.mode} << " type " << int{frame.frameType}
           << " time " << frame.seconds << ' ' << frame.nanoseconds << " count "
           << int{frame.byteCount} << " bytes";
    for (const std::uint8_t byte : frame.bytes) {
        stream << ' ' << int{byte};
    }
    return stream;
}
