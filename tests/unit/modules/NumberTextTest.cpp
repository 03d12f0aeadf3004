#include "modules/support/NumberText.h"

#include <gtest/gtest.h>

using namespace canmodule;

namespace {

TEST(NumberText, ReadsWhatTheEditorsWrite)
{
    EXPECT_EQ(parseNumber("20000"), 20'000U);
    EXPECT_EQ(parseNumber(" 0xFE00007F\n"), 0xFE00007FU);
    EXPECT_EQ(parseNumber("010"), 8U);
    EXPECT_EQ(parseNumber("0"), 0U);
    EXPECT_EQ(parseNumber("-1"), 0xFFFFFFFFU);
    EXPECT_EQ(parseNumber("4294967295"), 0xFFFFFFFFU);
}

TEST(NumberText, RefusesWhatIsNoNumber)
{
    for (const char* text : {"", " ", "x", "12a", "0x", "08", "4294967296", "-2147483649", "1 2"}) {
        EXPECT_FALSE(parseNumber(text).has_value()) << text;
    }
}

} // namespace
