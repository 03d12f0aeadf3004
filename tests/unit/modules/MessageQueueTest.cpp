#include "modules/support/MessageQueue.h"

#include <gtest/gtest.h>

using namespace canmodule;

namespace {

std::vector<std::unique_ptr<Message>> batchOf(std::int32_t first, std::int32_t count)
{
    std::vector<std::unique_ptr<Message>> batch;
    for (std::int32_t type = first; type < first + count; ++type) {
        batch.push_back(std::make_unique<Message>(type));
    }
    return batch;
}

std::int32_t nextType(MessageQueue& queue)
{
    const std::unique_ptr<Message> message(queue.pop());
    return message != nullptr ? message->type() : -1;
}

TEST(MessageQueue, KeepsTheOrderOverBatches)
{
    MessageQueue queue;
    auto batch = batchOf(0, 2);
    EXPECT_EQ(queue.push(batch), 0U);
    EXPECT_TRUE(batch.empty());
    EXPECT_EQ(nextType(queue), 0);
    batch = batchOf(2, 1);
    queue.push(batch);
    EXPECT_EQ(queue.fill(), 2U);
    EXPECT_EQ(nextType(queue), 1);
    EXPECT_EQ(nextType(queue), 2);
    EXPECT_EQ(nextType(queue), -1);
}

TEST(MessageQueue, WhatDoesNotFitIsDroppedAndTold)
{
    MessageQueue queue(3);
    auto batch = batchOf(0, 2);
    EXPECT_EQ(queue.push(batch), 0U);
    EXPECT_EQ(nextType(queue), 0);
    batch = batchOf(2, 4);
    EXPECT_EQ(queue.push(batch), 2U) << "one of three places is taken, by what is handed out";
    EXPECT_TRUE(batch.empty());
    for (const int type : {1, 2, 3, -1}) {
        EXPECT_EQ(nextType(queue), type);
    }
}

TEST(MessageQueue, ADrainComesToAnEnd)
{
    MessageQueue queue;
    auto batch = batchOf(0, static_cast<std::int32_t>(MessageQueue::drainLimit) + 1);
    queue.push(batch);
    std::size_t drained = 0;
    while (nextType(queue) >= 0) {
        ++drained;
    }
    EXPECT_EQ(drained, MessageQueue::drainLimit);
    EXPECT_EQ(nextType(queue), static_cast<int>(MessageQueue::drainLimit)) << "of the next drain";
}

TEST(MessageQueue, ClearDropsEverything)
{
    MessageQueue queue;
    auto batch = batchOf(0, 3);
    queue.push(batch);
    EXPECT_EQ(nextType(queue), 0);
    queue.clear();
    EXPECT_EQ(queue.fill(), 0U);
    EXPECT_EQ(nextType(queue), -1);
}

} // namespace
