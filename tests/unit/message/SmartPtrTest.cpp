#include "message/SmartPtr.h"

#include <gtest/gtest.h>
#include <utility>

namespace {

struct Counted
{
    explicit Counted(int& alive) : m_alive(alive) { ++m_alive; }
    ~Counted() { --m_alive; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    int& m_alive;
};

TEST(SmartPtr, NullHasNoBlock)
{
    const SmartPtr<Counted> none(nullptr);
    EXPECT_EQ(none.useCount(), 0U);
    EXPECT_EQ(none.get(), nullptr);
    EXPECT_FALSE(none);
    const SmartPtr<Counted> copy(none); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.useCount(), 0U);
}

TEST(SmartPtr, LastOwnerDeletesTheObject)
{
    int alive = 0;
    {
        SmartPtr<Counted> first(new Counted(alive));
        EXPECT_EQ(first.useCount(), 1U);
        {
            const SmartPtr<Counted> second(first);
            EXPECT_EQ(first.useCount(), 2U);
            EXPECT_EQ(second.get(), first.get());
        }
        EXPECT_EQ(first.useCount(), 1U);
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(SmartPtr, AssignmentReleasesTheOldAndSharesTheNew)
{
    int aliveA = 0;
    int aliveB = 0;
    SmartPtr<Counted> a(new Counted(aliveA));
    const SmartPtr<Counted> b(new Counted(aliveB));
    a = b;
    EXPECT_EQ(aliveA, 0);
    EXPECT_EQ(b.useCount(), 2U);
    a = *&a; // to itself
    EXPECT_EQ(b.useCount(), 2U);
}

TEST(SmartPtr, MoveLeavesNull)
{
    int alive = 0;
    SmartPtr<Counted> from(new Counted(alive));
    const SmartPtr<Counted> to(std::move(from));
    EXPECT_FALSE(from); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(to.useCount(), 1U);
}

} // namespace
