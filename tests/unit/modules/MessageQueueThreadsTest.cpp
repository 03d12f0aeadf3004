#include "modules/support/MessageQueue.h"

#include <gtest/gtest.h>
#include <thread>

using namespace canmodule;

namespace {

TEST(MessageQueueThreads, EveryMessageArrivesOnceAndInOrder)
{
    constexpr std::int32_t count = 20'000;
    MessageQueue queue;
    std::thread writer([&queue] {
        std::vector<std::unique_ptr<Message>> batch;
        for (std::int32_t type = 0; type < count; ++type) {
            batch.push_back(std::make_unique<Message>(type));
            if (type % 7 == 0 || type + 1 == count) {
                EXPECT_EQ(queue.push(batch), 0U);
            }
        }
    });
    std::int32_t expected = 0;
    while (expected < count) {
        const std::unique_ptr<Message> message(queue.pop());
        if (message == nullptr) {
            std::this_thread::yield();
            continue;
        }
        ASSERT_EQ(message->type(), expected);
        ++expected;
    }
    writer.join();
    EXPECT_EQ(queue.fill(), 0U);
}

} // namespace
