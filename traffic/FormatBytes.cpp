#include "traffic/FormatBytes.h"

#include "core/TextWriter.h"

#include <algorithm>

namespace {

std::int64_t bytesInLine(const zul::MessageCan& frame, int offset)
{
    if (offset < 0 || offset >= zul::MessageData::size) {
        return 0;
    }
    const std::int64_t left = static_cast<std::int64_t>(frame.byteCount()) - offset;
    return std::min<std::int64_t>(left, bytesPerLine);
}

// As " %2d-> ".
void appendOffset(TextWriter& line, int offset)
{
    constexpr int twoDigits = 10;
    line.append(' ');
    if (offset >= 0 && offset < twoDigits) {
        line.append(' ');
    }
    line.appendDecimal(offset);
    line.append("-> ");
}

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
    TextWriter line(buffer, capacity);
    appendOffset(line, offset);
    const zul::MessageData& bytes = frame.msg();
    for (int i = 0; i < count; ++i) {
        const int byte = bytes[offset + i];
        line.append(static_cast<char>('0' + byte / 100));
        line.append(static_cast<char>('0' + byte / 10 % 10));
        line.append(static_cast<char>('0' + byte % 10));
        if (i + 1 < count) {
            line.append(' ');
        }
    }
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
    TextWriter line(buffer, capacity);
    appendOffset(line, offset);
    const zul::MessageData& bytes = frame.msg();
    for (int i = 0; i < count; ++i) {
        const unsigned byte = bytes[offset + i];
        line.append('$');
        line.append(digits[byte >> 4U]);
        line.append(digits[byte & 0xFU]);
        if (i != lastIndex) {
            line.append(' ');
        }
    }
    return 0;
}
