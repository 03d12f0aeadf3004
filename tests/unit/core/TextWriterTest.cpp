#include "core/TextWriter.h"

#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace {

using TimeStamp = zul::MessageCan::TimeStamp;

std::string timeText(const TimeStamp& time, int decimals = TextWriter::maxDecimals)
{
    std::array<char, 40> buffer{};
    TextWriter(buffer.data(), buffer.size()).appendTime(time, decimals);
    return buffer.data();
}

std::string printedTime(const TimeStamp& time, int decimals = TextWriter::maxDecimals)
{
    std::array<char, 40> buffer{};
    zul::MessageCan frame;
    frame.setTimeStamp(time);
    std::snprintf(buffer.data(), buffer.size(), "%.*f", decimals, frame.timeStampDouble());
    return buffer.data();
}

TEST(TextWriter, AppendsAndCloses)
{
    std::array<char, 40> buffer{};
    TextWriter writer(buffer.data(), buffer.size());
    EXPECT_STREQ(buffer.data(), "");
    writer.append("id ");
    writer.append('=');
    writer.appendDecimal(-17);
    writer.append(" 0x");
    writer.appendHexadecimal(0x1FABCDE0);
    EXPECT_STREQ(buffer.data(), "id =-17 0x1FABCDE0");
}

TEST(TextWriter, CutsWhatDoesNotFit)
{
    std::array<char, 5> buffer{'x', 'x', 'x', 'x', 'x'};
    TextWriter writer(buffer.data(), buffer.size() - 1);
    writer.append("abcdef");
    writer.appendDecimal(7);
    EXPECT_STREQ(buffer.data(), "abc");
    EXPECT_EQ(buffer[4], 'x');
    TextWriter(buffer.data(), 1).append("abc");
    EXPECT_STREQ(buffer.data(), "");
}

TEST(TextWriter, NumbersAsPrintfWritesThem)
{
    for (const std::uint32_t number :
         {0U, 1U, 9U, 0xFU, 0x10U, 0x7FFU, 0x10000U, 0x1FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
        std::array<char, 40> expected{};
        std::array<char, 40> buffer{};
        std::snprintf(expected.data(), expected.size(), "%X %d", number, static_cast<int>(number));
        TextWriter writer(buffer.data(), buffer.size());
        writer.appendHexadecimal(number);
        writer.append(' ');
        writer.appendDecimal(static_cast<int>(number));
        EXPECT_STREQ(buffer.data(), expected.data());
    }
}

TEST(TextWriter, TimesAtTheEdges)
{
    EXPECT_EQ(timeText({0, 0}), "0.0000");
    EXPECT_EQ(timeText({12, 345'670'000}), "12.3457");
    EXPECT_EQ(timeText({12, 999'970'000}), "13.0000");
    constexpr std::uint32_t largest = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(timeText({largest, 999'999'999}), "4294967296.0000");
    EXPECT_EQ(timeText({1, largest}), printedTime({1, largest}));
}

TEST(TextWriter, TimesAsPrintfWritesThem)
{
    constexpr unsigned seed = 825;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::uint32_t> seconds(0);
    std::uniform_int_distribution<std::uint32_t> ticks(0, 9'999);
    std::uniform_int_distribution<std::uint32_t> rest(0, 99'999);
    std::uniform_int_distribution<std::uint32_t> nearTie(48'900, 51'100);
    for (int i = 0; i < 200'000; ++i) {
        const std::uint32_t below = i % 2 == 0 ? rest(generator) : nearTie(generator);
        const TimeStamp time{seconds(generator) >> (i % 32), ticks(generator) * 100'000 + below};
        ASSERT_EQ(timeText(time), printedTime(time))
            << "seed " << seed << ": " << time.seconds << " s " << time.nanoseconds << " ns";
    }
}

TEST(TextWriter, TimesWithFewerDecimalsAsPrintfWritesThem)
{
    constexpr unsigned seed = 826;
    std::mt19937 generator(seed);
    std::uniform_int_distribution<std::uint32_t> seconds(0);
    std::uniform_int_distribution<std::uint32_t> nanoseconds(0, 999'999'999);
    std::uniform_int_distribution<std::uint32_t> nearTie(498'900, 501'100);
    std::uniform_int_distribution<std::uint32_t> milliseconds(0, 999);
    for (int i = 0; i < 200'000; ++i) {
        const TimeStamp time{seconds(generator) >> (i % 32), nanoseconds(generator)};
        const int decimals = 1 + i % TextWriter::maxDecimals;
        ASSERT_EQ(timeText(time, decimals), printedTime(time, decimals))
            << "seed " << seed << ": " << time.seconds << " s " << time.nanoseconds << " ns";
        const TimeStamp tie{time.seconds, milliseconds(generator) * 1'000'000 + nearTie(generator)};
        ASSERT_EQ(timeText(tie, 3), printedTime(tie, 3))
            << "seed " << seed << ": " << tie.seconds << " s " << tie.nanoseconds << " ns";
    }
}

} // namespace
