#include "gui/desktop/Geometry.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using gui::boundedGeometry;
using gui::reachableGeometry;

TEST(Geometry, UsualWindowIsLeftAlone)
{
    EXPECT_EQ(boundedGeometry(-20, 10, 600, 400), QRect(-20, 10, 600, 400));
    EXPECT_EQ(reachableGeometry(QRect(-20, 10, 600, 400), QRect(0, 0, 1024, 768)),
              QRect(-20, 10, 600, 400));
}

TEST(Geometry, AbsurdNumbersAreBounded)
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    EXPECT_EQ(boundedGeometry(most, least, most, least), QRect(16384, -16384, 16384, 1));
}

TEST(Geometry, WindowOutsideTheDesktopComesBack)
{
    EXPECT_EQ(reachableGeometry(QRect(5000, 0, 600, 400), QRect(100, 50, 1024, 768)),
              QRect(100, 50, 600, 400));
    EXPECT_EQ(reachableGeometry(QRect(5000, 0, 600, 400), QRect()), QRect(5000, 0, 600, 400));
}

} // namespace
