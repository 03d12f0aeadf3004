#include "modules/network/PythonCan.h"

#include <gtest/gtest.h>
#include <random>

using namespace cannetwork;

namespace {

BusFrame frameOf(FrameMode mode, std::uint32_t id, std::uint32_t byteCount,
                 FrameType type = FrameType::Data)
{
    BusFrame frame;
    frame.mode = mode;
    frame.id = id;
    frame.byteCount = byteCount;
    frame.type = type;
    frame.time = 1'600'000'000 * second;
    for (std::uint32_t i = 0; type == FrameType::Data && i < byteCount; ++i) {
        frame.data.at(i) = static_cast<std::uint8_t>(0xFF - i);
    }
    return frame;
}

/// A map as python-can writes it, with what a test wants in it.
class Map
{
public:
    explicit Map(std::uint8_t pairs) { m_writer.map(pairs); }

    PackWriter<1000>& key(const char* name)
    {
        m_writer.text(name);
        return m_writer;
    }

    DatagramFault decode(std::vector<BusFrame>& frames)
    {
        return PythonCanDecoder().decode(m_writer.bytes(), frames);
    }

    DatagramFault decode()
    {
        std::vector<BusFrame> frames;
        const DatagramFault fault = decode(frames);
        EXPECT_EQ(frames.size(), fault == DatagramFault::None ? 1U : 0U);
        return fault;
    }

private:
    PackWriter<1000> m_writer;
};

TEST(PythonCan, EveryFrameComesBack)
{
    for (const FrameMode mode :
         {FrameMode::Standard, FrameMode::Extended, FrameMode::StandardFd, FrameMode::ExtendedFd,
          FrameMode::StandardFdBrs, FrameMode::ExtendedFdBrs}) {
        for (std::uint32_t bytes = 0; bytes <= (isFd(mode) ? 64U : 8U); ++bytes) {
            PythonCanEncoder encoder;
            const BusFrame sent = frameOf(mode, isExtended(mode) ? 0x1FFFFFFF : 0x7FF, bytes);
            ASSERT_TRUE(encoder.add(sent));
            EXPECT_TRUE(encoder.isComplete());
            EXPECT_FALSE(encoder.add(sent)) << "a datagram holds one frame";
            std::vector<BusFrame> frames;
            ASSERT_EQ(PythonCanDecoder().decode(encoder.finish(), frames), DatagramFault::None);
            ASSERT_EQ(frames.size(), 1U);
            EXPECT_EQ(frames[0].mode, mode);
            EXPECT_EQ(frames[0].id, sent.id);
            EXPECT_EQ(frames[0].byteCount, bytes);
            EXPECT_EQ(frames[0].data, sent.data);
        }
    }
}

TEST(PythonCan, RemoteFramesAskForBytesAndHaveNone)
{
    PythonCanEncoder encoder;
    encoder.add(frameOf(FrameMode::Extended, 1, 8, FrameType::Remote));
    std::vector<BusFrame> frames;
    ASSERT_EQ(PythonCanDecoder().decode(encoder.finish(), frames), DatagramFault::None);
    EXPECT_EQ(frames[0].type, FrameType::Remote);
    EXPECT_EQ(frames[0].byteCount, 8U);
}

TEST(PythonCan, ClearBeginsTheNextDatagram)
{
    PythonCanEncoder encoder;
    encoder.add(frameOf(FrameMode::Standard, 1, 1));
    encoder.clear();
    EXPECT_TRUE(encoder.isEmpty());
    EXPECT_TRUE(encoder.add(frameOf(FrameMode::Standard, 2, 1)));
}

TEST(PythonCan, UnknownKeysAreGoneOverAndAbsentOnesCountAsNothing)
{
    Map map(2);
    map.key("colour").map(1);
    map.key("deep").nil();
    map.key("arbitration_id").number(5);
    std::vector<BusFrame> frames;
    ASSERT_EQ(map.decode(frames), DatagramFault::None);
    EXPECT_EQ(frames[0].id, 5U);
    EXPECT_EQ(frames[0].byteCount, 0U);
    EXPECT_EQ(frames[0].mode, FrameMode::Standard);
}

TEST(PythonCan, ErrorFramesAreErrorFrames)
{
    Map map(2);
    map.key("is_error_frame").boolean(true);
    map.key("arbitration_id").number(0x12345678);
    std::vector<BusFrame> frames;
    ASSERT_EQ(map.decode(frames), DatagramFault::None);
    EXPECT_EQ(frames[0].type, FrameType::Error);
}

TEST(PythonCan, FramesThatCannotBeAreDropped)
{
    const std::array<std::uint8_t, 65> bytes{};
    const auto idAlone = [](std::uint32_t id, bool isExtendedId) {
        Map map(2);
        map.key("arbitration_id").number(id);
        map.key("is_extended_id").boolean(isExtendedId);
        return map.decode();
    };
    EXPECT_EQ(idAlone(0x7FF, false), DatagramFault::None);
    EXPECT_EQ(idAlone(0x800, false), DatagramFault::Frame);
    EXPECT_EQ(idAlone(0x20000000, true), DatagramFault::Frame);
    const auto data = [&bytes](std::uint32_t dlc, std::size_t size, bool isFdFrame, bool isRemote) {
        Map map(4);
        map.key("dlc").number(dlc);
        map.key("data").binary({bytes.data(), size});
        map.key("is_fd").boolean(isFdFrame);
        map.key("is_remote_frame").boolean(isRemote);
        return map.decode();
    };
    EXPECT_EQ(data(8, 8, false, false), DatagramFault::None);
    EXPECT_EQ(data(64, 64, true, false), DatagramFault::None);
    EXPECT_EQ(data(9, 9, false, false), DatagramFault::Frame);
    EXPECT_EQ(data(65, 65, true, false), DatagramFault::Frame);
    EXPECT_EQ(data(3, 2, false, false), DatagramFault::Frame);
    EXPECT_EQ(data(8, 0, false, true), DatagramFault::None);
    EXPECT_EQ(data(8, 0, true, true), DatagramFault::Frame) << "no remote frames in CAN FD";
}

TEST(PythonCan, ValuesOfAWrongKindAreRefused)
{
    Map text(1);
    text.key("arbitration_id").text("5");
    EXPECT_EQ(text.decode(), DatagramFault::Version);
    Map list(1);
    list.key("data").boolean(true);
    EXPECT_EQ(list.decode(), DatagramFault::Version);
    Map flag(1);
    flag.key("is_fd").text("yes");
    EXPECT_EQ(flag.decode(), DatagramFault::Version);
    Map number(1);
    number.key("dlc").real(8.0);
    EXPECT_EQ(number.decode(), DatagramFault::Version);
}

TEST(PythonCan, WhatIsNoMapOrEndsEarlyOrGoesOnIsRefused)
{
    std::vector<BusFrame> frames;
    PythonCanDecoder decoder;
    const std::vector<std::uint8_t> list{0x90};
    EXPECT_EQ(decoder.decode({list.data(), list.size()}, frames), DatagramFault::Version);
    PythonCanEncoder encoder;
    encoder.add(frameOf(FrameMode::Extended, 1, 8));
    const ByteView whole = encoder.finish();
    for (std::size_t size = 0; size < whole.size; ++size) {
        EXPECT_EQ(decoder.decode({whole.data, size}, frames), DatagramFault::Cut) << size;
    }
    std::vector<std::uint8_t> longer(whole.data, whole.data + whole.size);
    longer.push_back(0);
    EXPECT_EQ(decoder.decode({longer.data(), longer.size()}, frames), DatagramFault::TooLong);
    EXPECT_TRUE(frames.empty());
}

TEST(PythonCan, ChangedBytesAreHarmless)
{
    const unsigned seed = 815;
    std::mt19937 random(seed);
    PythonCanEncoder encoder;
    encoder.add(frameOf(FrameMode::ExtendedFd, 1, 64));
    const ByteView whole = encoder.finish();
    PythonCanDecoder decoder;
    std::vector<BusFrame> frames;
    for (int round = 0; round < 20'000; ++round) {
        std::vector<std::uint8_t> bytes(whole.data, whole.data + whole.size);
        for (int change = 0; change < 3; ++change) {
            bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
        }
        frames.clear();
        if (decoder.decode({bytes.data(), bytes.size()}, frames) == DatagramFault::None) {
            ASSERT_EQ(frames.size(), 1U);
            ASSERT_LE(frames[0].byteCount, 64U) << "seed " << seed << " round " << round;
        }
    }
}

} // namespace
