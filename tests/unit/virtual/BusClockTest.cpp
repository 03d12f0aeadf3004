#include "modules/virtual/BusClock.h"

#include "modules/virtual/BusRegistry.h"

#include <chrono>
#include <gtest/gtest.h>

using namespace canvirtual;

namespace {

TEST(MonotonicBusClock, StartsAtWallTimeAndNeverRunsBackwards)
{
    const MonotonicBusClock clock;
    const double wall =
        std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
    EXPECT_NEAR(toSeconds(clock.now()), wall, 1.0);
    BusTime last = clock.now();
    for (int call = 0; call < 1'000; ++call) {
        const BusTime now = clock.now();
        EXPECT_GE(now, last);
        last = now;
    }
}

TEST(BusRegistry, GivesOneBusANameAsLongAsItIsHeld)
{
    BusRegistry registry(std::make_unique<MonotonicBusClock>());
    const auto first = registry.bus("Bus A");
    EXPECT_EQ(registry.bus("Bus A"), first);
    EXPECT_NE(registry.bus("Bus B"), first);
    EXPECT_NE(registry.bus(""), first);
}

} // namespace
