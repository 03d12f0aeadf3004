#include "modules/network/Cannelloni.h"

#include <gtest/gtest.h>
#include <random>

using namespace cannetwork;

namespace {

using Bytes = std::vector<std::uint8_t>;

BusFrame frameOf(FrameMode mode, std::uint32_t id, std::uint32_t byteCount,
                 FrameType type = FrameType::Data)
{
    BusFrame frame;
    frame.mode = mode;
    frame.id = id;
    frame.byteCount = byteCount;
    frame.type = type;
    for (std::uint32_t i = 0; type == FrameType::Data && i < byteCount; ++i) {
        frame.data.at(i) = static_cast<std::uint8_t>(i + 1);
    }
    return frame;
}

Bytes encode(CannelloniEncoder& encoder)
{
    const ByteView view = encoder.finish();
    Bytes bytes(view.data, view.data + view.size);
    encoder.clear();
    return bytes;
}

class Cannelloni : public testing::Test
{
protected:
    DatagramFault decode(const Bytes& bytes)
    {
        return m_decoder.decode({bytes.data(), bytes.size()}, m_frames);
    }

    CannelloniDecoder m_decoder;
    std::vector<BusFrame> m_frames;
};

TEST_F(Cannelloni, StandardFrameHasItsBytes)
{
    CannelloniEncoder encoder;
    ASSERT_TRUE(encoder.add(frameOf(FrameMode::Standard, 0x123, 2)));
    EXPECT_EQ(encode(encoder), (Bytes{2, 0, 0, 0, 1, 0, 0, 1, 0x23, 2, 1, 2}));
}

TEST_F(Cannelloni, EveryKindHasItsBits)
{
    CannelloniEncoder encoder;
    encoder.add(frameOf(FrameMode::Extended, 0x1ABCDEF0, 0));
    EXPECT_EQ(encode(encoder), (Bytes{2, 0, 0, 0, 1, 0x9A, 0xBC, 0xDE, 0xF0, 0}));
    encoder.add(frameOf(FrameMode::Standard, 0x7FF, 5, FrameType::Remote));
    EXPECT_EQ(encode(encoder), (Bytes{2, 0, 1, 0, 1, 0x40, 0, 0x07, 0xFF, 5}))
        << "a length and no payload";
    encoder.add(frameOf(FrameMode::StandardFd, 1, 1));
    EXPECT_EQ(encode(encoder), (Bytes{2, 0, 2, 0, 1, 0, 0, 0, 1, 0x81, 0, 1}));
    encoder.add(frameOf(FrameMode::ExtendedFdBrs, 1, 1));
    EXPECT_EQ(encode(encoder), (Bytes{2, 0, 3, 0, 1, 0x80, 0, 0, 1, 0x81, 1, 1}));
}

TEST_F(Cannelloni, AllModesAndLengthsComeBack)
{
    for (const FrameMode mode :
         {FrameMode::Standard, FrameMode::Extended, FrameMode::StandardFd, FrameMode::ExtendedFd,
          FrameMode::StandardFdBrs, FrameMode::ExtendedFdBrs}) {
        for (std::uint32_t bytes = 0; bytes <= (isFd(mode) ? 64U : 8U); ++bytes) {
            CannelloniEncoder encoder;
            const BusFrame sent = frameOf(mode, isExtended(mode) ? 0x1FFFFFFF : 0x7FF, bytes);
            encoder.add(sent);
            m_frames.clear();
            ASSERT_EQ(decode(encode(encoder)), DatagramFault::None);
            ASSERT_EQ(m_frames.size(), 1U);
            EXPECT_EQ(m_frames[0].mode, mode);
            EXPECT_EQ(m_frames[0].id, sent.id);
            EXPECT_EQ(m_frames[0].byteCount, bytes);
            EXPECT_EQ(m_frames[0].data, sent.data);
        }
    }
}

TEST_F(Cannelloni, ManyFramesShareADatagramUntilItIsFull)
{
    CannelloniEncoder encoder;
    EXPECT_TRUE(encoder.isEmpty());
    std::uint32_t count = 0;
    while (!encoder.isComplete()) {
        ASSERT_TRUE(encoder.add(frameOf(FrameMode::ExtendedFdBrs, count++, 64)));
    }
    EXPECT_EQ(count, 20U);
    EXPECT_FALSE(encoder.add(frameOf(FrameMode::Standard, 0, 0)));
    const Bytes bytes = encode(encoder);
    EXPECT_LE(bytes.size(), cannelloni::maxSent);
    EXPECT_TRUE(encoder.isEmpty());
    EXPECT_EQ(decode(bytes), DatagramFault::None);
    EXPECT_EQ(m_frames.size(), count);
    EXPECT_EQ(m_frames.back().id, count - 1);
}

TEST_F(Cannelloni, ErrorFramesArrive)
{
    EXPECT_EQ(decode({2, 0, 0, 0, 1, 0x20, 0, 0, 0x40, 8, 1, 2, 3, 4, 5, 6, 7, 8}),
              DatagramFault::None);
    ASSERT_EQ(m_frames.size(), 1U);
    EXPECT_EQ(m_frames[0].type, FrameType::Error);
}

TEST_F(Cannelloni, FaultyDatagramsGiveNothing)
{
    const std::vector<std::pair<Bytes, DatagramFault>> faulty{
        {{}, DatagramFault::Cut},
        {{2, 0, 0, 0}, DatagramFault::Cut},
        {{1, 0, 0, 0, 0}, DatagramFault::Version},
        {{3, 0, 0, 0, 0}, DatagramFault::Version},
        {{2, 1, 0, 0, 0}, DatagramFault::Version},
        {{2, 0, 0, 0, 1}, DatagramFault::Cut},
        {{2, 0, 0, 0, 1, 0, 0, 0, 1, 1}, DatagramFault::Cut},
        {{2, 0, 0, 0, 1, 0, 0, 0, 1, 0x81}, DatagramFault::Cut},
        {{2, 0, 0, 0, 1, 0, 0, 0, 1, 9, 1, 2, 3, 4, 5, 6, 7, 8, 9}, DatagramFault::Frame},
        {{2, 0, 0, 0, 1, 0, 0, 0, 1, 0xC1, 0}, DatagramFault::Frame},
        {{2, 0, 0, 0, 1, 0, 0, 8, 0, 0}, DatagramFault::Frame},
        {{2, 0, 0, 0, 1, 0x40, 0, 0, 1, 0x80, 0}, DatagramFault::Frame},
        {{2, 0, 0, 0, 1, 0, 0, 0, 1, 0, 7}, DatagramFault::TooLong},
        {{2, 0, 0, 0xFF, 0xFF, 0, 0, 0, 1, 0}, DatagramFault::Cut},
    };
    for (std::size_t i = 0; i < faulty.size(); ++i) {
        EXPECT_EQ(decode(faulty[i].first), faulty[i].second) << i;
        EXPECT_TRUE(m_frames.empty()) << i;
    }
}

TEST_F(Cannelloni, AFaultTakesTheFramesBeforeItAway)
{
    m_frames.push_back(frameOf(FrameMode::Standard, 99, 0));
    EXPECT_EQ(decode({2, 0, 0, 0, 2, 0, 0, 0, 1, 0, 0, 0, 0, 1, 9}), DatagramFault::Frame);
    ASSERT_EQ(m_frames.size(), 1U) << "what was there before stays";
    EXPECT_EQ(m_frames[0].id, 99U);
}

TEST_F(Cannelloni, GapsInTheNumbersAreCounted)
{
    const auto datagram = [](int number) {
        return Bytes{2, 0, static_cast<std::uint8_t>(number), 0, 0};
    };
    for (const int number : {254, 255, 0, 1}) {
        EXPECT_EQ(decode(datagram(number)), DatagramFault::None);
    }
    EXPECT_EQ(m_decoder.missing(), 0U) << "it goes on behind 255";
    decode(datagram(4));
    EXPECT_EQ(m_decoder.missing(), 2U);
    decode(datagram(3));
    EXPECT_EQ(m_decoder.missing(), 1U) << "it was only late";
    decode(datagram(5));
    EXPECT_EQ(m_decoder.missing(), 1U);
    decode(datagram(5));
    EXPECT_EQ(m_decoder.missing(), 1U) << "twice the same";
}

TEST_F(Cannelloni, RandomBytesAreHarmless)
{
    const unsigned seed = 4711;
    std::mt19937 random(seed);
    for (int round = 0; round < 20'000; ++round) {
        Bytes bytes(random() % 80);
        for (std::uint8_t& byte : bytes) {
            byte = static_cast<std::uint8_t>(random());
        }
        if (bytes.size() > 4) {
            bytes[0] = 2;
            bytes[1] = 0;
            bytes[3] = 0;
            bytes[4] %= 4;
        }
        m_frames.clear();
        if (decode(bytes) == DatagramFault::None) {
            for (const BusFrame& frame : m_frames) {
                ASSERT_LE(frame.byteCount, 64U) << "seed " << seed << " round " << round;
            }
        } else {
            ASSERT_TRUE(m_frames.empty());
        }
    }
}

} // namespace
