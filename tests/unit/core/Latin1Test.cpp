#include "core/Latin1.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace {

using namespace zul;

QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

TEST(Latin1, EveryByteGoesBothWays)
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte) {
        all += static_cast<char>(byte);
    }
    const QString wide = fromLatin1(all);
    ASSERT_EQ(wide.size(), 256);
    EXPECT_EQ(wide.at(0xE4), QChar(0xE4));
    EXPECT_EQ(toLatin1(wide), all);
}

TEST(Latin1, OneByteALetter)
{
    EXPECT_EQ(toLatin1(QString::fromUtf8("\xc3\xbc")), "\xfc");
    EXPECT_EQ(fromLatin1("\xfc").size(), 1);
}

TEST(Latin1, WhatItDoesNotHaveBecomesAQuestionMark)
{
    EXPECT_EQ(toLatin1(QString::fromUtf8("5 \xe2\x82\xac")), "5 ?");
}

TEST(Latin1, Empty)
{
    EXPECT_EQ(toLatin1(QString()), "");
    EXPECT_TRUE(fromLatin1("").isEmpty());
}

TEST(LeadingInt, AgreesWithAtoi)
{
    for (const char* number :
         {"0", "12", "-12", "+12", " 12", "\t\n\v\f\r12", "12 13", "12x", "x12", "", "-", "+-1",
          "--1", "1e5", "0x1F", "007", "2147483647", "-2147483648",
          "\xa0"
          "12"}) {
        EXPECT_EQ(leadingInt(text(number)), std::atoi(number)) << number;
    }
}

TEST(LeadingInt, ClampsWhatAnIntCannotHold)
{
    EXPECT_EQ(leadingInt(text("2147483648")), 2147483647);
    EXPECT_EQ(leadingInt(text("-2147483649")), -2147483647 - 1);
    EXPECT_EQ(leadingInt(text("999999999999999999999999")), 2147483647);
    EXPECT_EQ(leadingInt(text("-999999999999999999999999")), -2147483647 - 1);
}

struct NumberCase
{
    const char* text;
    std::uint32_t expected;
};

class NumberWithPrefix : public testing::TestWithParam<NumberCase>
{
};

TEST_P(NumberWithPrefix, TakesTheBaseFromThePrefix)
{
    EXPECT_EQ(numberWithPrefix(text(GetParam().text)), GetParam().expected) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    , NumberWithPrefix,
    testing::Values(NumberCase{"0", 0}, NumberCase{"12", 12}, NumberCase{"+12", 12},
                    NumberCase{"0x1F", 31}, NumberCase{"0X1f", 31}, NumberCase{"010", 8},
                    NumberCase{"  0x10\t", 16}, NumberCase{"0xFE00007F", 0xFE00007F},
                    NumberCase{"4294967295", 0xFFFFFFFF}, NumberCase{"0xFFFFFFFF", 0xFFFFFFFF},
                    NumberCase{"-1", 0xFFFFFFFF}, NumberCase{"-2147483648", 0x80000000},
                    NumberCase{"4294967296", 0}, NumberCase{"0x100000000", 0},
                    NumberCase{"-2147483649", 0}, NumberCase{"99999999999999999999999", 0},
                    NumberCase{"", 0}, NumberCase{" ", 0}, NumberCase{"0x", 0}, NumberCase{"08", 0},
                    NumberCase{"12 13", 0}, NumberCase{"12x", 0}, NumberCase{"x12", 0},
                    NumberCase{"1.0", 0}, NumberCase{"1,000", 0}, NumberCase{"1F", 0},
                    NumberCase{"0xG", 0}, NumberCase{"--1", 0}));

TEST(NumberWithPrefixProperty, EveryValueIsReadInEveryBase)
{
    constexpr unsigned seed = 825;
    std::mt19937 random(seed);
    for (int i = 0; i < 20000; ++i) {
        // Every width of numbers, not only the widest.
        const auto value = static_cast<std::uint32_t>(random()) >> (random() % 32);
        for (const char* format : {"%u", "0x%x", "0x%08X", "0%o", " %u "}) {
            std::array<char, 32> number{};
            QT_WARNING_PUSH
            QT_WARNING_DISABLE_GCC("-Wformat-nonliteral")
            std::snprintf(number.data(), number.size(), format, value);
            QT_WARNING_POP
            ASSERT_EQ(numberWithPrefix(text(number.data())), value)
                << number.data() << ", seed " << seed;
        }
        const auto bits = static_cast<std::int32_t>(value);
        ASSERT_EQ(numberWithPrefix(QString::number(bits)), value) << bits << ", seed " << seed;
    }
}

TEST(NumberWithPrefixProperty, AnyTextIsHarmless)
{
    constexpr unsigned seed = 826;
    std::mt19937 random(seed);
    for (int i = 0; i < 20000; ++i) {
        QString noise;
        for (auto length = random() % 12; length > 0; --length) {
            noise += QChar(
                static_cast<ushort>(random() % 2 == 0 ? '+' + random() % 80 : random() % 0x10000));
        }
        numberWithPrefix(noise);
        leadingInt(noise);
        toLatin1(noise);
    }
}

} // namespace
