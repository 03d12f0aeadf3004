#include "node/UploadSchedule.h"

#include "message/MessageCan.h"
#include "message/MessageCtrl.h"
#include "tests/unit/node/ServiceTestLink.h"

#include <gtest/gtest.h>

namespace {

using zul::MessageCan;
using zul::MessageCtrl;
using zul::test::hexOf;

constexpr std::uint32_t dataId = 0x10050000;

/// The checksum step by step, as it is defined.
std::uint32_t slowChecksum(std::uint64_t size)
{
    std::uint32_t crc = 0xFFFFFFFF;
    for (std::uint64_t i = 0; i < size; ++i) {
        std::uint32_t term = static_cast<std::uint32_t>(i) << 24;
        for (int bit = 0; bit < 8; ++bit) {
            term = (term & 0x80000000U) != 0 ? (term << 1) ^ 0x04C11DB7U : term << 1;
        }
        crc = (crc << 8) ^ term;
    }
    return ~crc;
}

const MessageCan& frame(const MessageContainer& batch, std::size_t number)
{
    return *message_cast<MessageCan>(batch.messages().at(number + 1).get());
}

MessageCtrl::ECtrl control(const MessageContainer& batch, std::size_t index)
{
    const auto* message = message_cast<MessageCtrl>(batch.messages().at(index).get());
    return message != nullptr ? message->id() : MessageCtrl::ECtrl::ClearStatus;
}

/// Planned moments of the frames in milliseconds.
std::vector<int> plan(int fileBytes, const UploadPacing& pacing)
{
    const MessageContainer batch = uploadSchedule(QByteArray(fileBytes, 'x'), dataId, pacing);
    std::vector<int> times;
    for (std::size_t i = 0; i + 3 < batch.size(); ++i) {
        times.push_back(static_cast<int>(frame(batch, i).timeStampDouble() * 1000.0 + 0.5));
    }
    return times;
}

TEST(UploadChecksum, IsThatOfTheByteNumbers)
{
    EXPECT_EQ(uploadChecksum(0), 0U);
    EXPECT_EQ(uploadChecksum(1), ~0xFFFFFF00U);
    for (const std::uint64_t size : std::vector<std::uint64_t>{
             0, 1, 2, 3, 4, 5, 6, 7, 8, 255, 256, 257, 258, 259, 260, 4096, 65536, 100'003}) {
        EXPECT_EQ(uploadChecksum(size), slowChecksum(size)) << size;
    }
}

TEST(UploadChecksum, GoldenValues)
{
    // Terms of the numbers 0 to 3: 0, 04C11DB7, 09823B6E, 0D4326D9.
    EXPECT_EQ(uploadChecksum(2), ~(0xFFFF0000U ^ 0x04C11DB7U));
    EXPECT_EQ(uploadChecksum(4), ~((0x04C11DB7U << 16) ^ (0x09823B6EU << 8) ^ 0x0D4326D9U));
}

TEST(UploadSchedule, FrameCountHasOneMoreForAMultipleOfEight)
{
    EXPECT_EQ(uploadFrameCount(0), 1U);
    EXPECT_EQ(uploadFrameCount(3), 1U);
    EXPECT_EQ(uploadFrameCount(4), 2U);
    EXPECT_EQ(uploadFrameCount(5), 2U);
    EXPECT_EQ(uploadFrameCount(11), 2U);
    EXPECT_EQ(uploadFrameCount(12), 3U);
    EXPECT_EQ(uploadFrameCount(16 * 1024 * 1024), 2'097'153U);
}

TEST(UploadSchedule, ControlsStandRoundTheFrames)
{
    const MessageContainer batch = uploadSchedule("abcde", dataId, {});
    ASSERT_EQ(batch.size(), 5U);
    EXPECT_EQ(control(batch, 0), MessageCtrl::ECtrl::ScheduleBegin);
    EXPECT_EQ(control(batch, 3), MessageCtrl::ECtrl::ScheduleEnd);
    EXPECT_EQ(control(batch, 4), MessageCtrl::ECtrl::ScheduleStart);
    for (const std::size_t number : {0U, 1U}) {
        EXPECT_EQ(frame(batch, number).id(), dataId);
        EXPECT_EQ(frame(batch, number).cpmMode(), 1U);
        EXPECT_EQ(frame(batch, number).mode(), MessageCan::EMsgMode::Extended);
        EXPECT_EQ(frame(batch, number).frameType(), MessageCan::EFrameType::Data);
    }
}

TEST(UploadSchedule, FileAndChecksumFollowEachOther)
{
    const MessageContainer five = uploadSchedule("abcde", dataId, {});
    // Of 5 bytes the numbers 1 to 4 show: 04C11DB7 << 24 and so on.
    const std::uint32_t sum = slowChecksum(5);
    char tail[40];
    std::snprintf(tail, sizeof tail, "61 62 63 64 65 %02X %02X %02X", sum >> 24, sum >> 16 & 255,
                  sum >> 8 & 255);
    EXPECT_EQ(hexOf(frame(five, 0)), tail);
    std::snprintf(tail, sizeof tail, "%02X", sum & 255);
    EXPECT_EQ(hexOf(frame(five, 1)), tail);
}

TEST(UploadSchedule, EmptyFileIsOneFrameOfTheChecksum)
{
    const MessageContainer batch = uploadSchedule({}, dataId, {});
    ASSERT_EQ(batch.size(), 4U);
    EXPECT_EQ(hexOf(frame(batch, 0)), "00 00 00 00");
}

TEST(UploadSchedule, LastFrameOfAMultipleOfEightIsEmpty)
{
    const MessageContainer batch = uploadSchedule("abcd", dataId, {});
    ASSERT_EQ(batch.size(), 5U);
    EXPECT_EQ(frame(batch, 0).byteCount(), 8U);
    EXPECT_EQ(frame(batch, 1).byteCount(), 0U);
}

TEST(UploadSchedule, BytesBelongToTheirFrames)
{
    QByteArray file;
    for (int i = 0; i < 1000; ++i) {
        file.append(static_cast<char>(i * 7));
    }
    const MessageContainer batch = uploadSchedule(file, dataId, {});
    ASSERT_EQ(batch.size(), uploadFrameCount(1000) + 3);
    for (int i = 0; i < 1000; ++i) {
        EXPECT_EQ(frame(batch, static_cast<std::size_t>(i / 8)).msg()[i % 8],
                  static_cast<std::uint8_t>(i * 7));
    }
}

TEST(UploadSchedule, FramesThatFillABlockStillHaveTheMessageSeparationBehindThem)
{
    // Blocks of 16 bytes: the third frame is the first of which 16 bytes have gone before.
    EXPECT_EQ(plan(60, {1, 16, 10}),
              (std::vector<int>{100, 101, 102, 112, 113, 123, 124, 134, 135}));
}

TEST(UploadSchedule, OddBlocksEndWithTheFrameThatReachesThem)
{
    // Blocks of 9 bytes take two frames.
    EXPECT_EQ(plan(28, {2, 9, 50}), (std::vector<int>{100, 102, 104, 154, 156}));
}

TEST(UploadSchedule, WithoutBlocksTheirSeparationIsBehindEveryFrame)
{
    EXPECT_EQ(plan(28, {1, 0, 7}), (std::vector<int>{100, 107, 114, 121, 128}));
}

TEST(UploadSchedule, WithoutSeparationsAllFramesAreDueAtOnce)
{
    EXPECT_EQ(plan(28, {0, 65535, 0}), (std::vector<int>{100, 100, 100, 100, 100}));
}

TEST(UploadSchedule, ManyFramesDoNotDriftApart)
{
    const std::vector<int> times = plan(800'000, {1, 65535, 65535});
    // 12 blocks of 65,536 bytes (8,192 frames) go before the last frames.
    const int frames = static_cast<int>(times.size()) - 1;
    EXPECT_EQ(times.back(), 100 + frames + frames / 8193 * (65535 - 1));
}

} // namespace
