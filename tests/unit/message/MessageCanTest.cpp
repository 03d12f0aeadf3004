#include "message/MessageCan.h"

#include "message/MessageCtrl.h"
#include "message/MessageStatus.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <new>
#include <random>

namespace {

using zul::MessageCan;

TEST(MessageData, NewPayloadIsZeroEverywhere)
{
    // In memory that held something else before.
    alignas(zul::MessageData) std::array<unsigned char, sizeof(zul::MessageData)> memory{};
    memory.fill(0xFF);
    const auto* data = new (memory.data()) zul::MessageData;
    for (std::int32_t i = 0; i < zul::MessageData::size; ++i) {
        EXPECT_EQ((*data)[i], 0) << i;
    }
    data->~MessageData();
}

TEST(MessageData, IndexOutsideReadsZeroAndWritesNothing)
{
    zul::MessageData data;
    for (const std::int32_t index : {-1, 64, std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()}) {
        data[index] = 77;
        EXPECT_EQ(data[index], 0);
    }
    for (std::int32_t i = 0; i < zul::MessageData::size; ++i) {
        EXPECT_EQ(data[i], 0) << i;
    }
}

TEST(Message, DefaultTypeIsZeroAndTypeAndWordsAreCopied)
{
    EXPECT_EQ(Message().type(), 0);
    Message original(7);
    original.setModuleWord(0, 11);
    original.setModuleWord(1, 12);
    original.setModuleWord(2, 13);
    original.setModuleWord(-1, 14);
    const Message copy(original);
    Message assigned;
    assigned = original;
    for (const Message* message : {&copy, &static_cast<const Message&>(assigned)}) {
        EXPECT_EQ(message->type(), 7);
        EXPECT_EQ(message->moduleWord(0), 11U);
        EXPECT_EQ(message->moduleWord(1), 12U);
        EXPECT_EQ(message->moduleWord(2), 0U);
        EXPECT_EQ(message->moduleWord(-1), 0U);
    }
}

TEST(MessageCan, EveryFieldReadsBackAndIsCopied)
{
    MessageCan frame;
    EXPECT_EQ(frame.type(), 0);
    frame.setId(0x1ABCDEFF);
    frame.setByteCount(64);
    frame.setFrameType(MessageCan::EFrameType::Remote);
    frame.setMode(MessageCan::EMsgMode::ExtendedFdBrs);
    frame.setChannel(3);
    frame.setCpmMode(1);
    frame.setTimeStamp(MessageCan::TimeStamp{5, 250'000'000});
    frame.msg()[63] = 0xA5;
    const MessageCan copy(frame);
    EXPECT_EQ(copy.id(), 0x1ABCDEFFU);
    EXPECT_EQ(copy.byteCount(), 64U);
    EXPECT_EQ(copy.frameType(), MessageCan::EFrameType::Remote);
    EXPECT_EQ(copy.mode(), MessageCan::EMsgMode::ExtendedFdBrs);
    EXPECT_EQ(copy.channel(), 3U);
    EXPECT_EQ(copy.cpmMode(), 1U);
    EXPECT_EQ(copy.timeStamp().seconds, 5U);
    EXPECT_EQ(copy.timeStamp().nanoseconds, 250'000'000U);
    EXPECT_DOUBLE_EQ(copy.timeStampDouble(), 5.25);
    EXPECT_EQ(copy.msg()[63], 0xA5);
}

TEST(MessageCan, EnumerationsHaveTheirWireNumbers)
{
    EXPECT_EQ(static_cast<int>(MessageCan::EFrameType::Data), 0);
    EXPECT_EQ(static_cast<int>(MessageCan::EFrameType::Remote), 1);
    EXPECT_EQ(static_cast<int>(MessageCan::EFrameType::Error), 255);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::Standard), 0);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::Extended), 1);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::StandardFd), 2);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::ExtendedFd), 3);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::StandardFdBrs), 4);
    EXPECT_EQ(static_cast<int>(MessageCan::EMsgMode::ExtendedFdBrs), 5);
    EXPECT_EQ(static_cast<int>(zul::MessageCtrl::ECtrl::ClearStatus), 0);
    EXPECT_EQ(static_cast<int>(zul::MessageCtrl::ECtrl::ScheduleEnd), 1);
    EXPECT_EQ(static_cast<int>(zul::MessageCtrl::ECtrl::ScheduleBegin), 2);
    EXPECT_EQ(static_cast<int>(zul::MessageCtrl::ECtrl::ScheduleStart), 3);
}

TEST(TimeStamp, ZeroStaysZero)
{
    MessageCan frame;
    frame.setTimeStamp(5.25);
    frame.setTimeStamp(0.0);
    EXPECT_EQ(frame.timeStampDouble(), 0.0);
}

TEST(TimeStamp, WhatTheRecordCannotHoldIsClamped)
{
    const auto expectRecord = [](double seconds, std::uint32_t whole, std::uint32_t nano) {
        MessageCan frame;
        frame.setTimeStamp(5.25);
        frame.setTimeStamp(seconds);
        EXPECT_EQ(frame.timeStamp().seconds, whole) << seconds;
        EXPECT_EQ(frame.timeStamp().nanoseconds, nano) << seconds;
    };
    expectRecord(-1.0, 0, 0);
    expectRecord(std::nan(""), 0, 0);
    expectRecord(-std::numeric_limits<double>::infinity(), 0, 0);
    expectRecord(std::numeric_limits<double>::infinity(), 4294967295U, 999'999'999U);
    expectRecord(1e300, 4294967295U, 999'999'999U);
    expectRecord(4294967296.0, 4294967295U, 999'999'999U);
    expectRecord(4294967295.0, 4294967295U, 0);
    expectRecord(0.9999999999, 1, 0);
    expectRecord(4294967295.9999999, 4294967295U, 999'999'999U);
}

TEST(TimeStamp, RoundTripKeepsWhatADoubleResolves)
{
    constexpr unsigned seed = 20201;
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> seconds(0.0, 4294967295.0);
    for (int i = 0; i < 10000; ++i) {
        const double value = seconds(generator);
        MessageCan frame;
        frame.setTimeStamp(value);
        EXPECT_NEAR(frame.timeStampDouble(), value, 1e-6) << "seed " << seed;
    }
}

TEST(MessageCast, TellsTheClassesApartByRunTimeType)
{
    const std::unique_ptr<Message> frame = std::make_unique<MessageCan>();
    const std::unique_ptr<Message> status = std::make_unique<zul::MessageStatus>();
    EXPECT_NE(message_cast<MessageCan>(frame.get()), nullptr);
    EXPECT_EQ(message_cast<MessageCan>(status.get()), nullptr);
    EXPECT_NE(message_cast<zul::MessageStatus>(status.get()), nullptr);
    EXPECT_EQ(message_cast<MessageCan>(static_cast<Message*>(nullptr)), nullptr);
}

TEST(MessageCan, CastFindsWhatDerivesFromTheClass)
{
    class Marked : public MessageCan
    {
    };
    const std::unique_ptr<Message> marked = std::make_unique<Marked>();
    EXPECT_EQ(message_cast<MessageCan>(marked.get()), marked.get());
    EXPECT_EQ(message_cast<Message>(marked.get()), marked.get());
    const MessageCan frame;
    EXPECT_EQ(message_cast<Marked>(&frame), nullptr);
}

TEST(MessageCtrl, IdReadsBack)
{
    zul::MessageCtrl control;
    EXPECT_EQ(control.id(), zul::MessageCtrl::ECtrl::ClearStatus);
    control.setId(zul::MessageCtrl::ECtrl::ScheduleStart);
    EXPECT_EQ(control.id(), zul::MessageCtrl::ECtrl::ScheduleStart);
}

TEST(MessageStatus, CopyCarriesCountersAndEntries)
{
    zul::MessageStatus status;
    EXPECT_EQ(status.bitCount0 + status.bitCount1, 0U);
    status.messageCount0 = 4;
    status.entries.push_back({"State", "open", "#dcffdc"});
    const zul::MessageStatus copy(status);
    EXPECT_EQ(copy.messageCount0, 4U);
    ASSERT_EQ(copy.entries.size(), 1U);
    EXPECT_EQ(copy.entries[0].value, "open");
}

} // namespace
