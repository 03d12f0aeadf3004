#pragma once

#include "message/MessageCan.h"

#include <cstddef>
#include <cstdint>

/// Appends to a text in a buffer of the caller's; what does not fit is cut, and a closing 0 always
/// stands. It does the work of snprintf where rows are written again and again, at a fraction of
/// its time.
class TextWriter
{
public:
    static constexpr int maxDecimals = 4; ///< of a time

    /// Of hexadecimal digits.
    enum class Letters { Capital, Small };

    /// The text is empty at first. `capacity` counts the closing 0 and is at least 1.
    TextWriter(char* buffer, std::size_t capacity);

    void append(char character)
    {
        if (m_length + 1 < m_capacity) {
            m_buffer[m_length++] = character;
            m_buffer[m_length] = '\0';
        }
    }
    void append(const char* text);
    /// As "%d".
    void appendDecimal(std::int64_t number);
    /// As "%0*d", with a width of up to 20.
    void appendZeroFilled(std::int64_t number, int width);
    /// As "%-*d".
    void appendLeftAligned(std::int64_t number, int width);
    /// As "%X", or as "%x" with small letters.
    void appendHexadecimal(std::uint32_t number, Letters letters = Letters::Capital);
    /// As "%.4f" of `zul::MessageCan::timeStampDouble`, to the last digit; with `decimals`, 1 to 4,
    /// in place of the 4.
    void appendTime(const zul::MessageCan::TimeStamp& time, int decimals = maxDecimals);

    /// Characters so far, without the closing 0.
    std::size_t length() const { return m_length; }

private:
    void append(const char* text, std::size_t length);
    void fill(char character, int count);

    char* m_buffer;
    std::size_t m_capacity;
    std::size_t m_length = 0;
};
