#include "traffic/FormatBytes.h"

#include <algorithm>
#include <cstdio>

namespace {

// Room for the offset mark and 16 bytes of four characters each; no line can reach its end.
constexpr std::size_t lineSize = payloadLineCapacity;

std::int64_t bytesInLine(const zul::MessageCan& frame, int offset)
{
    if (offset < 0 || offset >= zul::MessageData::size) {
        return 0;
    }
    const std::int64_t left = static_cast<std::int64_t>(frame.byteCount()) - offset;
    return std::min<std::int64_t>(left, bytesPerLine);
}

// Appends in place of snprintf, which would be called for each byte of each repainted row.
class Line
{
public:
    explicit Line(int offset)
    {
        m_length = static_cast<std::size_t>(
            std::clamp(std::snprintf(m_text, lineSize, " %2d-> ", offset), 0, 16));
    }

    void append(char character)
    {
        if (m_length + 1 < lineSize) {
            m_text[m_length++] = character;
        }
    }

    void copyTo(char* buffer, std::size_t capacity) const
    {
        const std::size_t count = std::min(m_length, capacity - 1);
        std::copy_n(m_text, count, buffer);
        buffer[count] = '\0';
    }

private:
    char m_text[lineSize] = {};
    std::size_t m_length = 0;
};

} // namespace

int formatBytesDec(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset)
{
    if (capacity == 0) {
        return 0;
    }
    buffer[0] = '\0';
    const std::int64_t count = bytesInLine(frame, offset);
    if (count < 1) {
        return 0;
    }
    Line line(offset);
    for (int i = 0; i < count; ++i) {
        const int byte = frame.msg()[offset + i];
        line.append(static_cast<char>('0' + byte / 100));
        line.append(static_cast<char>('0' + byte / 10 % 10));
        line.append(static_cast<char>('0' + byte % 10));
        if (i + 1 < count) {
            line.append(' ');
        }
    }
    line.copyTo(buffer, capacity);
    return 0;
}

int formatBytesHex(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset)
{
    if (capacity == 0) {
        return 0;
    }
    buffer[0] = '\0';
    const std::int64_t count = bytesInLine(frame, offset);
    if (count < 1) {
        return 0;
    }
    constexpr const char* digits = "0123456789abcdef";
    const std::int64_t lastIndex = static_cast<std::int64_t>(frame.byteCount()) - 1;
    Line line(offset);
    for (int i = 0; i < count; ++i) {
        const unsigned byte = frame.msg()[offset + i];
        line.append('$');
        line.append(digits[byte >> 4U]);
        line.append(digits[byte & 0xFU]);
        if (i != lastIndex) {
            line.append(' ');
        }
    }
    line.copyTo(buffer, capacity);
    return 0;
}
