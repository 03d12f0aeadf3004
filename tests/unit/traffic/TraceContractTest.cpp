#include "profile/ProfileStore.h"
#include "tests/support/ConsoleCapture.h"
#include "tests/support/TestHome.h"
#include "tests/unit/traffic/TraceTestFrames.h"
#include "traffic/TraceFileReader.h"
#include "traffic/TraceFiles.h"
#include "traffic/TraceLayout.h"
#include "traffic/TraceLine.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>

namespace {

using zul::MessageCan;

/// A form of trace file, and what it is known to lose.
struct Form
{
    const char* name;
    const char* suffix;
    std::int32_t traceFormat;
    std::int32_t numberType;
    bool isText;
    bool isSwapped;       ///< the file is turned into the other byte order
    bool hasExtendedBit;  ///< 29-bit frames are given their bit 31
    bool losesEverything; ///< all but error frames
    bool losesIdentifier;
    bool hasFreeText;       ///< the payload is told in words, and may hold what ends a line
    bool keepsShiftedBytes; ///< byte 0 is lost, the others come one place late
};

constexpr Form forms[] = {
    {"zlb", ".zlb", 0, 0, false, false, false, false, false, false, false},
    {"can_little", ".CAN", 0, 0, false, false, true, false, false, false, false},
    {"can_big", ".CAN", 0, 0, false, true, true, false, false, false, false},
    {"zla_decimal", ".zla", 0, 0, true, false, false, false, false, false, true},
    {"zla_hexadecimal", ".zla", 0, 1, true, false, false, false, true, false, false},
    {"zla_canaerospace", ".zla", 3, 0, true, false, false, false, false, true, false},
    {"zla_arinc825", ".zla", 4, 0, true, false, false, true, true, false, false},
};

void reverse(QByteArray& bytes, int offset, int count)
{
    std::reverse(bytes.begin() + offset, bytes.begin() + offset + count);
}

void swapFile(QByteArray& bytes)
{
    for (const int offset : {0, 2, 4, 6, 12}) {
        reverse(bytes, offset, 2);
    }
    for (const int offset : {8, 20, 24}) {
        reverse(bytes, offset, 4);
    }
    for (int record = 128; record < bytes.size(); record += 28) {
        reverse(bytes, record + 10, 2);
        for (const int offset : {12, 16, 20, 24}) {
            reverse(bytes, record + offset, 4);
        }
    }
}

bool isExtended(const MessageCan& frame)
{
    return static_cast<std::uint32_t>(frame.mode()) % 2 == 1;
}

class TraceContract : public testing::TestWithParam<Form>
{
protected:
    /// Writes the frames, and reads them back.
    std::vector<TraceFrame> roundTrip(std::vector<MessageCan> frames) const
    {
        const Form& form = GetParam();
        TraceFiles files;
        const QString base = m_home.file(QStringLiteral("trace"));
        EXPECT_TRUE(files.open(base.toLatin1().toStdString(), QDateTime::currentDateTime()));
        std::uint32_t number = 0;
        for (MessageCan& frame : frames) {
            if (form.hasExtendedBit && isExtended(frame)) {
                frame.setId(frame.id() | trace_layout::extendedBit);
            }
            std::string line;
            appendTraceFileLine(line, frame, number++, form.traceFormat, form.numberType, m_store);
            files.write(frame, line);
        }
        files.close();
        const QString written = form.isText ? QStringLiteral(".zla") : QStringLiteral(".zlb");
        QByteArray bytes = m_home.read(QStringLiteral("trace") + written);
        if (form.isSwapped) {
            swapFile(bytes);
        }
        const QString name = QStringLiteral("copy") + QLatin1String(form.suffix);
        m_home.write(name, bytes);
        const zul::test::ConsoleCapture console;
        TraceFrames trace;
        readTraceFile(m_home.file(name), trace);
        for (TraceFrame& frame : trace.frames) {
            frame.bytes = form.hasFreeText ? decltype(frame.bytes){} : frame.bytes;
        }
        return trace.frames;
    }

    /// What the form leaves of a frame.
    static TraceFrame expected(const MessageCan& frame)
    {
        return GetParam().isText ? expectedOfText(frame) : expectedOfBinary(frame);
    }

private:
    static TraceFrame expectedOfBinary(const MessageCan& frame)
    {
        TraceFrame left;
        left.seconds = frame.timeStamp().seconds;
        left.nanoseconds = frame.timeStamp().nanoseconds;
        left.frameType = static_cast<std::uint8_t>(frame.frameType());
        if (frame.frameType() == MessageCan::EFrameType::Error) {
            return left;
        }
        left.id = frame.id();
        if (GetParam().hasExtendedBit && isExtended(frame)) {
            left.id |= trace_layout::extendedBit;
            left.mode = 1;
        }
        left.byteCount = static_cast<std::uint8_t>(frame.byteCount());
        for (int i = 0; i < 8; ++i) {
            left.bytes[static_cast<std::size_t>(i)] = frame.msg()[i];
        }
        return left;
    }

    static TraceFrame expectedOfText(const MessageCan& frame)
    {
        const Form& form = GetParam();
        TraceFrame left;
        const bool isError = frame.frameType() == MessageCan::EFrameType::Error;
        if (form.losesEverything && !isError) {
            left.mode = 1;
            return left;
        }
        std::array<char, 40> text{};
        std::snprintf(text.data(), text.size(), "%.3f", frame.timeStampDouble());
        MessageCan time;
        time.setTimeStamp(std::stod(text.data()));
        left.seconds = time.timeStamp().seconds;
        left.nanoseconds = time.timeStamp().nanoseconds;
        left.frameType = static_cast<std::uint8_t>(frame.frameType());
        if (isError) {
            return left;
        }
        left.id = form.losesIdentifier ? 0 : frame.id();
        left.byteCount = static_cast<std::uint8_t>(frame.byteCount() % 10);
        const auto count = static_cast<int>(frame.byteCount());
        for (int i = 0; form.keepsShiftedBytes && i < 7 && i < count; ++i) {
            left.bytes[static_cast<std::size_t>(i) + 1] = frame.msg()[i];
        }
        return left;
    }

    zul::test::TestHome m_home;
    ProfileStore m_store;
};

void expectAll(const std::vector<TraceFrame>& read, const std::vector<TraceFrame>& expected)
{
    ASSERT_EQ(read.size(), expected.size());
    for (std::size_t i = 0; i < read.size(); ++i) {
        ASSERT_EQ(read[i], expected[i]) << "frame " << i;
    }
}

TEST_P(TraceContract, GoldenFrames)
{
    std::vector<TraceFrame> left;
    for (const MessageCan& frame : zul::test::goldenFrames()) {
        left.push_back(expected(frame));
    }
    expectAll(roundTrip(zul::test::goldenFrames()), left);
}

TEST_P(TraceContract, NoFrames)
{
    EXPECT_TRUE(roundTrip({}).empty());
}

TEST_P(TraceContract, RandomFrames)
{
    constexpr unsigned seed = 4506;
    SCOPED_TRACE(seed);
    std::mt19937 generator(seed);
    const auto draw = [&generator](std::uint32_t most) {
        return std::uniform_int_distribution<std::uint32_t>(0, most)(generator);
    };
    constexpr MessageCan::EFrameType types[] = {MessageCan::EFrameType::Data,
                                                MessageCan::EFrameType::Remote,
                                                MessageCan::EFrameType::Error};
    std::vector<MessageCan> frames(2000);
    std::vector<TraceFrame> left;
    for (MessageCan& frame : frames) {
        frame.setMode(static_cast<MessageCan::EMsgMode>(draw(5)));
        frame.setId(draw(isExtended(frame) ? 0x1FFFFFFF : 0x7FF));
        frame.setFrameType(types[draw(2)]);
        frame.setByteCount(draw(64));
        frame.setChannel(draw(0xFFFFFFFFU));
        frame.setTimeStamp(MessageCan::TimeStamp{draw(0xFFFFFFFEU), draw(999'999'999)});
        for (int i = 0; i < 64; ++i) {
            // Of letters, none that ends a line.
            frame.msg()[i] = static_cast<std::uint8_t>(
                GetParam().hasFreeText ? ' ' + draw('~' - ' ') : draw(255));
        }
        left.push_back(expected(frame));
    }
    expectAll(roundTrip(frames), left);
}

TEST(TraceText, LetterThatEndsALineSplitsItInTwo)
{
    const zul::test::TestHome home;
    const ProfileStore store;
    MessageCan frame = zul::test::traceFrame(300, 2.0, {1, 23, 0, 7, '\n', 0, 0, 0}); // ACHAR
    std::string line;
    appendTraceFileLine(line, frame, 0, 3, 0, store);
    home.write(QStringLiteral("a.zla"), QByteArray::fromStdString(line + "\n"));
    TraceFrames trace;
    readTraceFile(home.file(QStringLiteral("a.zla")), trace);
    ASSERT_EQ(trace.frames.size(), 2U);
    EXPECT_EQ(trace.frames[0].id, 300U);
    EXPECT_EQ(trace.frames[1].id, 0U);
}

INSTANTIATE_TEST_SUITE_P(AllForms, TraceContract, testing::ValuesIn(forms),
                         [](const auto& form) { return std::string(form.param.name); });

} // namespace
