#include "modules/support/SendSchedule.h"

#include <gtest/gtest.h>

using namespace canmodule;

namespace {

BusFrame frameOf(std::uint32_t id)
{
    BusFrame frame;
    frame.id = id;
    return frame;
}

TEST(SendSchedule, TakesFramesOnlyWhileOpen)
{
    SendSchedule schedule;
    EXPECT_FALSE(schedule.add(frameOf(1), 0));
    schedule.begin();
    EXPECT_TRUE(schedule.isOpen());
    EXPECT_TRUE(schedule.add(frameOf(1), 0));
    schedule.end();
    EXPECT_FALSE(schedule.add(frameOf(2), 0));
    EXPECT_EQ(schedule.left(), 1U);
    EXPECT_TRUE(schedule.head() == nullptr) << "not started";
}

TEST(SendSchedule, EqualDelaysKeepTheirOrder)
{
    SendSchedule schedule;
    schedule.begin();
    schedule.add(frameOf(1), 20);
    schedule.add(frameOf(2), 10);
    schedule.add(frameOf(3), 20);
    schedule.start(1'000);
    for (const std::uint32_t id : {2U, 1U, 3U}) {
        const BusFrame* head = schedule.head();
        ASSERT_TRUE(head != nullptr);
        EXPECT_EQ(head->id, id);
        EXPECT_EQ(schedule.dueAt(), id == 2 ? 1'010 : 1'020);
        schedule.pop();
    }
    EXPECT_TRUE(schedule.head() == nullptr);
    EXPECT_EQ(schedule.dueAt(), never);
    EXPECT_EQ(schedule.left(), 0U);
}

TEST(SendSchedule, FullMemoryRefuses)
{
    constexpr std::size_t capacity = 5;
    SendSchedule schedule(capacity);
    schedule.begin();
    for (std::size_t count = 0; count < capacity; ++count) {
        ASSERT_TRUE(schedule.add(frameOf(1), 0));
    }
    EXPECT_FALSE(schedule.add(frameOf(1), 0));
    EXPECT_EQ(schedule.left(), capacity);
}

TEST(SendSchedule, StartOfAnEmptyMemoryDoesNothing)
{
    SendSchedule schedule;
    schedule.start(5);
    EXPECT_TRUE(schedule.head() == nullptr);
}

} // namespace
