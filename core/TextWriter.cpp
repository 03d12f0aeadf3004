#include "core/TextWriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::uint32_t nanosecondsPerSecond = 1'000'000'000;
// A double of wall-clock size is off by up to 240 ns, which decides how a tie is rounded.
constexpr std::uint32_t tieMargin = 1'000;

bool isNearTie(std::uint32_t rest, std::uint32_t halfTick)
{
    return rest >= halfTick - tieMargin && rest <= halfTick + tieMargin;
}

/// A number as "%d".
class Digits
{
public:
    explicit Digits(std::int64_t number)
        : m_end(std::to_chars(m_text.data(), m_text.data() + m_text.size(), number).ptr)
    {
    }
    const char* begin() const { return m_text.data(); }
    int length() const { return static_cast<int>(m_end - m_text.data()); }

private:
    std::array<char, 24> m_text; // 64 bits have 19 digits, and there may be a sign
    const char* m_end;
};

} // namespace

TextWriter::TextWriter(char* buffer, std::size_t capacity) : m_buffer(buffer), m_capacity(capacity)
{
    m_buffer[0] = '\0';
}

void TextWriter::append(const char* text)
{
    append(text, std::strlen(text));
}

void TextWriter::append(const char* text, std::size_t length)
{
    const std::size_t fitting = std::min(length, m_capacity - 1 - m_length);
    std::memcpy(m_buffer + m_length, text, fitting);
    m_length += fitting;
    m_buffer[m_length] = '\0';
}

void TextWriter::fill(char character, int count)
{
    for (int i = 0; i < count; ++i) {
        append(character);
    }
}

void TextWriter::appendDecimal(std::int64_t number)
{
    appendLeftAligned(number, 0);
}

void TextWriter::appendZeroFilled(std::int64_t number, int width)
{
    const Digits digits(number);
    const int sign = number < 0 ? 1 : 0;
    append(digits.begin(), static_cast<std::size_t>(sign));
    fill('0', width - digits.length());
    append(digits.begin() + sign, static_cast<std::size_t>(digits.length() - sign));
}

void TextWriter::appendLeftAligned(std::int64_t number, int width)
{
    const Digits digits(number);
    append(digits.begin(), static_cast<std::size_t>(digits.length()));
    fill(' ', width - digits.length());
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
