#include "traffic/TraceLayout.h"

#include "tests/unit/traffic/TraceTestFrames.h"

#include <gtest/gtest.h>

namespace {

using zul::MessageCan;
using zul::test::goldenFrames;
using zul::test::traceFrame;
using namespace trace_layout;

QDateTime someTime()
{
    return {QDate(2026, 11, 21), QTime(18, 35, 9, 123), Qt::UTC};
}

template <std::size_t size>
QByteArray bytesOf(const std::array<std::uint8_t, size>& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<int>(size)};
}

TEST(TraceLayout, GoldenFile)
{
    QByteArray written = bytesOf(headerOf(someTime()));
    for (const MessageCan& frame : goldenFrames()) {
        written += bytesOf(recordOf(frame));
    }
    EXPECT_EQ(written.toHex(' '), zul::test::traceData(QStringLiteral("frames.zlb")).toHex(' '));
}

TEST(TraceLayout, HeaderByteByByte)
{
    const Header header = headerOf(someTime());
    ASSERT_EQ(header.size(), 128U);
    const std::array<int, 28> expected{0xBA, 0xAB, 0,  0,  0, 0, 0, 0, 0, 0, 0, 0, 0xEA, 0x07,
                                       11,   21,   18, 35, 9, 0, 0, 0, 0, 0, 0, 0, 0,    0};
    for (std::size_t i = 0; i < header.size(); ++i) {
        EXPECT_EQ(header[i], i < expected.size() ? expected[i] : 0x41) << "offset " << i;
    }
}

TEST(TraceLayout, RecordByteByByte)
{
    MessageCan frame = traceFrame(0x81234567U, 0.0, {1, 2, 3, 4, 5, 6, 7, 8, 9});
    frame.setByteCount(0x1FF);
    frame.setFrameType(MessageCan::EFrameType::Remote);
    frame.setChannel(0xABCDEF01U);
    frame.setTimeStamp(MessageCan::TimeStamp{0x0A0B0C0D, 0x1A1B1C1D});
    const Record expected{1,    2,    3, 4, 5, 6, 7,    8,    0xFF, 1,    0x01, 0xEF, 0x67, 0x45,
                          0x23, 0x81, 0, 0, 0, 0, 0x1D, 0x1C, 0x1B, 0x1A, 0x0D, 0x0C, 0x0B, 0x0A};
    EXPECT_EQ(recordOf(frame), expected);
}

TEST(TraceLayout, BytesBeyondTheByteCountAreKept)
{
    MessageCan frame = traceFrame(1, 0.0, {1, 2, 3});
    frame.setByteCount(1);
    EXPECT_EQ(recordOf(frame)[2], 3);
}

TEST(TraceLayout, ModeIsNotStored)
{
    MessageCan frame = traceFrame(0x123, 0.0);
    const Record standard = recordOf(frame);
    frame.setMode(MessageCan::EMsgMode::Extended);
    EXPECT_EQ(recordOf(frame), standard);
}

TEST(TraceLayout, EveryOtherMarkerIsTheOtherOrder)
{
    Header header{};
    EXPECT_EQ(orderOf(header), Order::Big);
    header[0] = 0xAB;
    header[1] = 0xBA;
    EXPECT_EQ(markerOf(header), 0xBAAB);
    EXPECT_EQ(orderOf(header), Order::Big);
    header[0] = 0xBA;
    header[1] = 0xAB;
    EXPECT_EQ(markerOf(header), 0xABBA);
    EXPECT_EQ(orderOf(header), Order::Little);
}

TEST(TraceLayout, BothOrdersOfOneRecord)
{
    const Record record{1,    2,    3, 4, 5, 6, 7,    8,    5,    0,    0x01, 0xEF, 0x67, 0x45,
                        0x23, 0x81, 0, 0, 0, 0, 0x1D, 0x1C, 0x1B, 0x1A, 0x0D, 0x0C, 0x0B, 0x0A};
    TraceFrame expected;
    expected.bytes = {1, 2, 3, 4, 5, 6, 7, 8};
    expected.byteCount = 5;
    expected.mode = 1;
    expected.id = 0x81234567;
    expected.nanoseconds = 0x1A1B1C1D;
    expected.seconds = 0x0A0B0C0D;
    EXPECT_EQ(frameOf(record.data(), Order::Little), expected);
    expected.mode = 0;
    expected.id = 0x67452381;
    expected.nanoseconds = 0x1D1C1B1A;
    expected.seconds = 0x0D0C0B0A;
    EXPECT_EQ(frameOf(record.data(), Order::Big), expected);
}

TEST(TraceLayout, FrameTypes)
{
    for (int type = 0; type < 256; ++type) {
        Record record = recordOf(traceFrame(0x80000012U, 3.5, {7}));
        record[9] = static_cast<std::uint8_t>(type);
        TraceFrame expected;
        expected.seconds = 3;
        expected.nanoseconds = 500'000'000;
        if (type != 255) {
            expected.id = 0x80000012U;
            expected.mode = 1;
            expected.bytes[0] = 7;
            expected.byteCount = 1;
        }
        expected.frameType = static_cast<std::uint8_t>(type == 1 || type == 255 ? type : 0);
        EXPECT_EQ(frameOf(record.data(), Order::Little), expected) << type;
    }
}

TEST(TraceFrame, TakesTheTimeOfAMessage)
{
    for (const MessageCan& frame : goldenFrames()) {
        const TraceFrame read = frameOf(recordOf(frame).data(), Order::Little);
        EXPECT_EQ(read.time(), frame.timeStampDouble());
        MessageCan copy;
        read.copyTo(copy);
        EXPECT_EQ(copy.timeStampDouble(), frame.timeStampDouble());
        EXPECT_EQ(copy.frameType(), frame.frameType());
    }
}

} // namespace
