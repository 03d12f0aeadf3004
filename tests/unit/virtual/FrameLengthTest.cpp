#include "modules/virtual/FrameLength.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>

using namespace canvirtual;

namespace {

BusFrame makeFrame(FrameMode mode, std::uint32_t id, std::uint32_t byteCount,
                   std::uint8_t fill = 0x55)
{
    BusFrame frame;
    frame.mode = mode;
    frame.id = id;
    frame.byteCount = byteCount;
    for (std::uint32_t index = 0; index < byteCount; ++index) {
        frame.data[index] = fill;
    }
    return frame;
}

/// Identifier, remote bit and so on of the classic frame as the text of its bits, for counting
/// stuff bits by a second way than the one under test.
std::string bitText(std::uint32_t value, int width)
{
    std::string text;
    for (int bit = width - 1; bit >= 0; --bit) {
        text += (value >> static_cast<unsigned>(bit) & 1U) != 0 ? '1' : '0';
    }
    return text;
}

std::string crc15Text(const std::string& bits)
{
    // Polynomial division on the text itself: x^15+x^14+x^10+x^8+x^7+x^4+x^3+1.
    const std::string divisor = "1100010110011001";
    std::string rest = bits + std::string(15, '0');
    for (std::size_t i = 0; i < bits.size(); ++i) {
        if (rest[i] == '1') {
            for (std::size_t k = 0; k < divisor.size(); ++k) {
                rest[i + k] = rest[i + k] == divisor[k] ? '0' : '1';
            }
        }
    }
    return rest.substr(bits.size());
}

std::string stuffed(const std::string& bits)
{
    std::string out;
    for (const char bit : bits) {
        out += bit;
        const std::size_t n = out.size();
        if (n >= 5 && out.compare(n - 5, 5, std::string(5, bit)) == 0) {
            // The text holds the stuff bits too, so that they count in the runs that follow.
            out += bit == '0' ? '1' : '0';
        }
    }
    return out;
}

int classicLengthByText(const BusFrame& frame)
{
    const std::string remote = frame.type == FrameType::Remote ? "1" : "0";
    std::string bits = "0";
    if (isExtended(frame.mode)) {
        bits +=
            bitText(frame.id >> 18U, 11) + "11" + bitText(frame.id & 0x3FFFFU, 18) + remote + "00";
    } else {
        bits += bitText(frame.id, 11) + remote + "00";
    }
    bits += bitText(frame.byteCount, 4);
    if (frame.type == FrameType::Data) {
        for (std::uint32_t index = 0; index < frame.byteCount; ++index) {
            bits += bitText(frame.data[index], 8);
        }
    }
    return static_cast<int>(stuffed(bits + crc15Text(bits)).size()) + 10;
}

TEST(FrameLength, AllZeroFrameHasAStuffBitAfterEveryFiveBits)
{
    // 34 zero bits, the CRC included: 6 stuff bits. Then 10 bits of delimiters and end of frame.
    EXPECT_EQ(frameBits(makeFrame(FrameMode::Standard, 0, 0)).total(), 34 + 6 + 10);
}

TEST(FrameLength, BestCaseHasNoStuffBits)
{
    const BusFrame frame = makeFrame(FrameMode::Standard, 0x555, 8, 0x55);
    const int length = frameBits(frame).total();
    EXPECT_GE(length, 108);
    int best = 1000;
    for (std::uint32_t id = 0; id <= maxStandardId; ++id) {
        best = std::min(best, frameBits(makeFrame(FrameMode::Standard, id, 8, 0x55)).total());
    }
    EXPECT_EQ(best, 108);
}

TEST(FrameLength, WorstCaseStaysWithinTheBoundOfTheStuffingRule)
{
    // At most one stuff bit per four bits after the first: (34 + 64 - 1) / 4 = 24.
    int worst = 0;
    for (std::uint32_t id = 0; id <= maxStandardId; ++id) {
        worst = std::max(worst, frameBits(makeFrame(FrameMode::Standard, id, 8, 0x3C)).total());
    }
    EXPECT_LE(worst, 132);
    EXPECT_GE(worst, 120);
}

TEST(FrameLength, ShortestFramesAreAbout21000PerSecond)
{
    double sum = 0;
    int shortest = 1000;
    for (std::uint32_t id = 0; id <= maxStandardId; ++id) {
        const int bits =
            frameBits(makeFrame(FrameMode::Standard, id, 0)).total() + intermissionBits;
        shortest = std::min(shortest, bits);
        sum += bits;
    }
    // RTR, IDE, r0 and the DLC are seven zeros: no such frame does without a stuff bit.
    EXPECT_EQ(shortest, 48);
    EXPECT_NEAR(1e6 / (sum / 2048), 20'500, 700);
}

TEST(FrameLength, RemoteFrameCarriesNoData)
{
    BusFrame frame = makeFrame(FrameMode::Standard, 0x2AA, 8);
    frame.type = FrameType::Remote;
    const int length = frameBits(frame).total();
    EXPECT_GE(length, 44);
    EXPECT_LE(length, 44 + 8);
}

TEST(FrameLength, ClassicFramesAgreeWithStuffingDoneOnText)
{
    std::uint32_t state = 4711;
    SCOPED_TRACE("seed 4711");
    const auto next = [&state] {
        state = state * 1664525U + 1013904223U;
        return state >> 3U;
    };
    for (int round = 0; round < 3000; ++round) {
        const bool extended = (next() & 1U) != 0;
        BusFrame frame = makeFrame(extended ? FrameMode::Extended : FrameMode::Standard,
                                   next() & (extended ? maxExtendedId : maxStandardId), next() % 9);
        for (std::uint32_t index = 0; index < frame.byteCount; ++index) {
            // Every other frame of long runs, where stuffing is densest.
            frame.data[index] = static_cast<std::uint8_t>(
                (round & 1) != 0 ? next() : ((next() & 1U) != 0 ? 0xF8U : 0x07U));
        }
        frame.type = next() % 8 == 0 ? FrameType::Remote : FrameType::Data;
        ASSERT_EQ(frameBits(frame).total(), classicLengthByText(frame)) << "round " << round;
    }
}

TEST(FrameLength, FdFrameWithoutDataByHand)
{
    // Nominal: SOF, 11 zeros, RRS, IDE are 14 zeros with 2 stuff bits; FDF, reserved, BRS; then
    // ACK, delimiter, 7 bits of end. Data phase: ESI and DLC are 5 zeros, whose stuff bit is the
    // first fixed one; 4 + 17 bits and 6 fixed stuff bits; CRC delimiter.
    const FrameBits bits = frameBits(makeFrame(FrameMode::StandardFdBrs, 0, 0));
    EXPECT_EQ(bits.nominal, 14 + 2 + 3 + 9);
    EXPECT_EQ(bits.data, 5 + 27 + 1);
    // Without the switch BRS is 0 and ends no run: reserved, BRS, ESI and two bits of the DLC are
    // five zeros, so that one stuff bit comes on top.
    const FrameBits unswitched = frameBits(makeFrame(FrameMode::StandardFd, 0, 0));
    EXPECT_EQ(unswitched.nominal, 14 + 2 + 3 + 9 + 5 + 1 + 27 + 1);
    EXPECT_EQ(unswitched.data, 0);
}

TEST(FrameLength, FdCrcGrowsAbove16Bytes)
{
    // 0x55 needs no stuff bits, so that the difference is data, CRC and its fixed stuff bits.
    const int with16 = frameBits(makeFrame(FrameMode::StandardFdBrs, 0x2AA, 16)).data;
    const int with20 = frameBits(makeFrame(FrameMode::StandardFdBrs, 0x2AA, 20)).data;
    EXPECT_EQ(with20 - with16, 4 * 8 + 5);
    // ESI 0, DLC 1010 (16 bytes), data, 27 bits of CRC field, delimiter.
    EXPECT_EQ(with16, 5 + 128 + 27 + 1);
}

TEST(FrameLength, ExtendedFdFrameIs18IdentifierBitsLonger)
{
    const FrameBits standard = frameBits(makeFrame(FrameMode::StandardFdBrs, 0x2AA, 16));
    const FrameBits extended =
        frameBits(makeFrame(FrameMode::ExtendedFdBrs, 0x2AAU << 18U | 0x2AAAAU, 16));
    EXPECT_EQ(extended.nominal - standard.nominal, 19);
    EXPECT_EQ(extended.data, standard.data);
}

TEST(FrameLength, ErrorFrameHasFlagEchoAndDelimiter)
{
    EXPECT_EQ(errorFrameBits(40, 0).total(), 40 + 6 + 8);
    EXPECT_EQ(errorFrameBits(40, 6).total(), 40 + 12 + 8);
    EXPECT_EQ(errorFrameBits(-5, 99).total(), 1 + 12 + 8);
}

TEST(FrameLength, DurationRoundsUp)
{
    EXPECT_EQ(duration({50, 0}, {1'000'000, 2'000'000}), 50'000);
    EXPECT_EQ(duration({10, 20}, {500'000, 4'000'000}), 20'000 + 5'000);
    EXPECT_EQ(duration({1, 0}, {83'333, 83'333}), 12'001);
}

TEST(BusFrame, WireByteCountIsThatOfTheLengthCode)
{
    EXPECT_EQ(wireByteCount(FrameMode::Standard, 99), 8U);
    EXPECT_EQ(wireByteCount(FrameMode::StandardFd, 9), 12U);
    EXPECT_EQ(wireByteCount(FrameMode::StandardFd, 33), 48U);
    EXPECT_EQ(wireByteCount(FrameMode::StandardFd, 1000), 64U);
    EXPECT_EQ(dataLengthCode(8), 8U);
    EXPECT_EQ(dataLengthCode(64), 15U);
}

TEST(BusFrame, ArbitrationOrder)
{
    const auto priority = [](FrameMode mode, std::uint32_t id, FrameType type = FrameType::Data) {
        BusFrame frame = makeFrame(mode, id, 0);
        frame.type = type;
        return arbitrationPriority(frame);
    };
    EXPECT_LT(priority(FrameMode::Standard, 5), priority(FrameMode::Standard, 6));
    EXPECT_LT(priority(FrameMode::Standard, 5), priority(FrameMode::Extended, 5U << 18U));
    EXPECT_LT(priority(FrameMode::Standard, 5, FrameType::Remote),
              priority(FrameMode::Extended, 5U << 18U));
    EXPECT_LT(priority(FrameMode::Extended, (5U << 18U) - 1), priority(FrameMode::Standard, 5));
    EXPECT_LT(priority(FrameMode::Standard, 5),
              priority(FrameMode::Standard, 5, FrameType::Remote));
    EXPECT_LT(priority(FrameMode::Extended, 77),
              priority(FrameMode::Extended, 77, FrameType::Remote));
    EXPECT_LT(priority(FrameMode::Extended, 77, FrameType::Remote),
              priority(FrameMode::Extended, 78));
}

TEST(BusFrame, MessageRoundTripKeepsEverything)
{
    zul::MessageCan message;
    message.setId(0x123);
    message.setMode(FrameMode::StandardFd);
    message.setByteCount(13);
    for (std::int32_t index = 0; index < 64; ++index) {
        message.msg()[index] = static_cast<std::uint8_t>(index + 1);
    }
    BusFrame frame = frameFromMessage(message);
    frame.time = 1'700'000'000 * second + 999'999'999;
    EXPECT_EQ(frame.byteCount, 16U);
    const auto back = messageFromFrame(frame);
    EXPECT_EQ(back->id(), 0x123U);
    EXPECT_EQ(back->byteCount(), 16U);
    EXPECT_EQ(back->mode(), FrameMode::StandardFd);
    EXPECT_EQ(back->msg()[12], 13);
    EXPECT_EQ(back->msg()[13], 0);
    EXPECT_EQ(back->timeStamp().seconds, 1'700'000'000U);
    EXPECT_EQ(back->timeStamp().nanoseconds, 999'999'999U);
}

TEST(BusFrame, ProblemsAreNamed)
{
    zul::MessageCan message;
    EXPECT_EQ(frameProblem(message), "");
    message.setId(0x800);
    EXPECT_NE(frameProblem(message), "");
    message.setMode(FrameMode::Extended);
    EXPECT_EQ(frameProblem(message), "");
    message.setId(0x20000000);
    EXPECT_NE(frameProblem(message), "");
    message.setId(0);
    message.setFrameType(FrameType::Error);
    EXPECT_NE(frameProblem(message), "");
    message.setFrameType(FrameType::Remote);
    message.setMode(FrameMode::StandardFd);
    EXPECT_NE(frameProblem(message), "");
    message.setFrameType(FrameType::Data);
    message.setMode(static_cast<FrameMode>(6));
    EXPECT_NE(frameProblem(message), "");
}

} // namespace
