#include "traffic/TraceLayout.h"

#include <algorithm>

using zul::MessageCan;

namespace trace_layout {

namespace {

constexpr unsigned bitsPerByte = 8;

constexpr std::size_t yearAt = 12;
constexpr std::size_t monthAt = 14;
constexpr std::size_t dayAt = 15;
constexpr std::size_t hourAt = 16;
constexpr std::size_t minuteAt = 17;
constexpr std::size_t secondAt = 18;
constexpr std::size_t fillerAt = 28;
constexpr std::uint8_t filler = 0x41;

constexpr std::size_t byteCountAt = 8;
constexpr std::size_t frameTypeAt = 9;
constexpr std::size_t channelAt = 10;
constexpr std::size_t idAt = 12;
constexpr std::size_t nanosecondsAt = 20;
constexpr std::size_t secondsAt = 24;

std::uint8_t low8(std::uint32_t value)
{
    return static_cast<std::uint8_t>(value & 0xFFU);
}

void store16(std::uint8_t* bytes, std::uint32_t value)
{
    bytes[0] = low8(value);
    bytes[1] = low8(value >> bitsPerByte);
}

void store32(std::uint8_t* bytes, std::uint32_t value)
{
    store16(bytes, value);
    store16(bytes + 2, value >> 2 * bitsPerByte);
}

std::uint32_t load32(const std::uint8_t* bytes, Order order)
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < sizeof value; ++i) {
        const std::size_t place = order == Order::Little ? i : sizeof value - 1 - i;
        value |= static_cast<std::uint32_t>(bytes[place]) << bitsPerByte * i;
    }
    return value;
}

} // namespace

Header headerOf(const QDateTime& start)
{
    const QDate date = start.date();
    const QTime time = start.time();
    Header header{};
    store16(header.data(), marker);
    store16(&header[yearAt], static_cast<std::uint32_t>(date.year()));
    header[monthAt] = low8(static_cast<std::uint32_t>(date.month()));
    header[dayAt] = low8(static_cast<std::uint32_t>(date.day()));
    header[hourAt] = low8(static_cast<std::uint32_t>(time.hour()));
    header[minuteAt] = low8(static_cast<std::uint32_t>(time.minute()));
    header[secondAt] = low8(static_cast<std::uint32_t>(time.second()));
    std::fill(header.begin() + fillerAt, header.end(), filler);
    return header;
}

Record recordOf(const MessageCan& frame)
{
    Record record{};
    for (int i = 0; i < TraceFrame::byteCapacity; ++i) {
        record[static_cast<std::size_t>(i)] = frame.msg()[i];
    }
    record[byteCountAt] = low8(frame.byteCount());
    record[frameTypeAt] = low8(static_cast<std::uint32_t>(frame.frameType()));
    store16(&record[channelAt], frame.channel());
    store32(&record[idAt], frame.id());
    store32(&record[nanosecondsAt], frame.timeStamp().nanoseconds);
    store32(&record[secondsAt], frame.timeStamp().seconds);
    return record;
}

std::uint16_t markerOf(const Header& header)
{
    return static_cast<std::uint16_t>(header[0] | header[1] << bitsPerByte);
}

Order orderOf(const Header& header)
{
    return markerOf(header) == marker ? Order::Little : Order::Big;
}

TraceFrame frameOf(const std::uint8_t* record, Order order)
{
    constexpr auto remote = static_cast<std::uint8_t>(MessageCan::EFrameType::Remote);
    constexpr auto error = static_cast<std::uint8_t>(MessageCan::EFrameType::Error);
    TraceFrame frame;
    frame.seconds = load32(record + secondsAt, order);
    frame.nanoseconds = load32(record + nanosecondsAt, order);
    const std::uint8_t frameType = record[frameTypeAt];
    if (frameType == error) {
        frame.frameType = error;
        return frame;
    }
    frame.id = load32(record + idAt, order);
    if ((frame.id & extendedBit) != 0) {
        frame.mode = 1;
    }
    if (frameType == remote) {
        frame.frameType = remote;
    }
    frame.byteCount = record[byteCountAt];
    std::copy_n(record, frame.bytes.size(), frame.bytes.begin());
    return frame;
}

} // namespace trace_layout
