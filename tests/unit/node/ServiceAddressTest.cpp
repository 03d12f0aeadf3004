#include "node/ServiceAddress.h"

#include <gtest/gtest.h>

namespace {

TEST(ServiceAddress, EveryFieldHasItsBits)
{
    EXPECT_EQ(requestId({}), 4U << 26 | 1U << 18);
    EXPECT_EQ(requestId({6, 0, 0, 0, 0, 0}), 6U << 26 | 1U << 18);
    EXPECT_EQ(requestId({4, 127, 0, 0, 0, 0}), 4U << 26 | 127U << 19 | 1U << 18);
    EXPECT_EQ(requestId({4, 0, 1, 0, 0, 0}), 4U << 26 | 1U << 18 | 1U << 17);
    EXPECT_EQ(requestId({4, 0, 0, 127, 0, 0}), 4U << 26 | 1U << 18 | 127U << 9);
    EXPECT_EQ(requestId({4, 0, 0, 0, 127, 0}), 4U << 26 | 1U << 18 | 127U << 2);
    EXPECT_EQ(requestId({4, 0, 0, 0, 0, 3}), 4U << 26 | 1U << 18 | 3U);
    EXPECT_EQ(requestId({5, 20, 1, 30, 40, 2}), 0x14A63CA2U);
}

TEST(ServiceAddress, LargeServiceIdentifierSpillsIntoTheServersField)
{
    for (const std::uint32_t serverFid : {0U, 1U, 2U, 127U}) {
        const std::uint32_t id = requestId({4, 0, 0, serverFid, maxSidEntry, 0});
        EXPECT_EQ(id >> 9 & 3U, 3U) << serverFid;
    }
}

TEST(ServiceAddress, FramesAreExtendedDataFramesWithoutContents)
{
    const auto frame = serviceFrame(0x12345678, 5);
    EXPECT_EQ(frame->mode(), zul::MessageCan::EMsgMode::Extended);
    EXPECT_EQ(frame->frameType(), zul::MessageCan::EFrameType::Data);
    EXPECT_EQ(frame->id(), 0x12345678U);
    EXPECT_EQ(frame->byteCount(), 5U);
    EXPECT_EQ(frame->cpmMode(), 0U);
    for (std::int32_t i = 0; i < zul::MessageData::size; ++i) {
        EXPECT_EQ(frame->msg()[i], 0) << i;
    }
}

TEST(ServiceAddress, ErrorFramesAndOtherMessagesAnswerNothing)
{
    zul::MessageCan frame;
    EXPECT_EQ(answerOf(&frame), &frame);
    frame.setFrameType(zul::MessageCan::EFrameType::Error);
    EXPECT_EQ(answerOf(&frame), nullptr);
    const Message other;
    EXPECT_EQ(answerOf(&other), nullptr);
    EXPECT_EQ(answerOf(nullptr), nullptr);
}

} // namespace
