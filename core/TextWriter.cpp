#include "core/TextWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>

namespace {

constexpr std::uint32_t nanosecondsPerSecond = 1'000'000'000;
// A double of wall-clock size is off by up to 240 ns, which decides how a tie is rounded.
constexpr std::uint32_t tieMargin = 1'000;

bool isNearTie(std::uint32_t rest, std::uint32_t halfTick)
{
    return rest >= halfTick - tieMargin && rest <= halfTick + tieMargin;
}

} // namespace

TextWriter::TextWriter(char* buffer, std::size_t capacity) : m_buffer(buffer), m_capacity(capacity)
{
    m_buffer[0] = '\0';
}

void TextWriter::append(const char* text)
{
    for (; *text != '\0'; ++text) {
        append(*text);
    }
}

void TextWriter::appendDecimal(std::int64_t number)
{
    std::array<char, 24> digits{};
    std::to_chars(digits.data(), digits.data() + digits.size() - 1, number);
    append(digits.data());
}

void TextWriter::appendHexadecimal(std::uint32_t number, Letters letters)
{
    constexpr unsigned bitsPerDigit = 4;
    const char* const digits =
        letters == Letters::Capital ? "0123456789ABCDEF" : "0123456789abcdef";
    unsigned shift = 32 - bitsPerDigit;
    while (shift > 0 && number >> shift == 0) {
        shift -= bitsPerDigit;
    }
    for (;; shift -= bitsPerDigit) {
        append(digits[number >> shift & 0xFU]);
        if (shift == 0) {
            return;
        }
    }
}

void TextWriter::appendTime(const zul::MessageCan::TimeStamp& time, int decimals)
{
    std::uint32_t ticksPerSecond = 1; // a tick is one of the last digit shown
    for (int i = 0; i < std::clamp(decimals, 1, maxDecimals); ++i) {
        ticksPerSecond *= 10;
    }
    const std::uint32_t nanosecondsPerTick = nanosecondsPerSecond / ticksPerSecond;
    const std::uint32_t halfTick = nanosecondsPerTick / 2;
    const std::uint32_t rest = time.nanoseconds % nanosecondsPerTick;
    if (time.nanoseconds >= nanosecondsPerSecond || isNearTie(rest, halfTick)) {
        std::array<char, 32> text{};
        zul::MessageCan frame; // its view in seconds is the one to round
        frame.setTimeStamp(time);
        std::snprintf(text.data(), text.size(), "%.*f", std::clamp(decimals, 1, maxDecimals),
                      frame.timeStampDouble());
        append(text.data());
        return;
    }
    const std::uint32_t ticks = time.nanoseconds / nanosecondsPerTick + (rest > halfTick ? 1U : 0U);
    appendDecimal(static_cast<std::int64_t>(time.seconds) + ticks / ticksPerSecond);
    append('.');
    for (std::uint32_t unit = ticksPerSecond / 10; unit > 0; unit /= 10) {
        append(static_cast<char>('0' + ticks / unit % 10));
    }
}
