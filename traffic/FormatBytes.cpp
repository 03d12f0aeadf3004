#include "traffic/FormatBytes.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace {

constexpr std::size_t cellSize = 4; // of one byte's text with the blank behind it
constexpr int byteValues = 256;

/// What each byte looks like, a blank behind it.
using Cells = std::array<std::array<char, cellSize>, byteValues>;

constexpr Cells decimalCells()
{
    Cells cells{};
    for (std::size_t byte = 0; byte < cells.size(); ++byte) {
        cells[byte] = {static_cast<char>('0' + byte / 100), static_cast<char>('0' + byte / 10 % 10),
                       static_cast<char>('0' + byte % 10), ' '};
    }
    return cells;
}

constexpr Cells hexadecimalCells()
{
    constexpr const char* digits = "0123456789abcdef";
    Cells cells{};
    for (std::size_t byte = 0; byte < cells.size(); ++byte) {
        cells[byte] = {'$', digits[byte / 16], digits[byte % 16], ' '};
    }
    return cells;
}

constexpr Cells decimals = decimalCells();
constexpr Cells hexadecimals = hexadecimalCells();

int bytesInLine(const zul::MessageCan& frame, int offset)
{
    if (offset < 0 || offset >= zul::MessageData::size) {
        return 0;
    }
    const std::int64_t left = static_cast<std::int64_t>(frame.byteCount()) - offset;
    return static_cast<int>(std::min<std::int64_t>(left, bytesPerLine));
}

/// A line before it is cut to the room that the caller has.
using Line = std::array<char, payloadLineCapacity>;

// As " %2d-> ", and the bytes; returns the end.
char* writeLine(Line& line, const zul::MessageCan& frame, int offset, int count, const Cells& cells)
{
    constexpr int twoDigits = 10;
    char* end = line.data();
    *end++ = ' ';
    *end++ = offset < twoDigits ? ' ' : static_cast<char>('0' + offset / 10);
    *end++ = static_cast<char>('0' + offset % 10);
    constexpr std::string_view arrow = "-> ";
    end = std::copy(arrow.begin(), arrow.end(), end);
    const zul::MessageData& bytes = frame.msg();
    for (int i = 0; i < count; ++i) {
        std::memcpy(end, cells[bytes[offset + i]].data(), cellSize);
        end += cellSize;
    }
    return end;
}

void copyLine(char* buffer, std::size_t capacity, const Line& line, const char* end)
{
    const std::size_t length = std::min(static_cast<std::size_t>(end - line.data()), capacity - 1);
    std::memcpy(buffer, line.data(), length);
    buffer[length] = '\0';
}

enum class LastBlank {
    Never,       // none behind the last byte of a line
    InsideFrame, // one there, unless the frame has no other line
};

void format(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset,
            const Cells& cells, LastBlank lastBlank)
{
    if (capacity == 0) {
        return;
    }
    buffer[0] = '\0';
    const int count = bytesInLine(frame, offset);
    if (count < 1) {
        return;
    }
    Line line{};
    const char* end = writeLine(line, frame, offset, count, cells);
    const bool isWhole = static_cast<std::uint32_t>(count) == frame.byteCount();
    copyLine(buffer, capacity, line, lastBlank == LastBlank::Never || isWhole ? end - 1 : end);
}

} // namespace

int formatBytesDec(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset)
{
    format(buffer, capacity, frame, offset, decimals, LastBlank::Never);
    return 0;
}

int formatBytesHex(char* buffer, std::size_t capacity, const zul::MessageCan& frame, int offset)
{
    format(buffer, capacity, frame, offset, hexadecimals, LastBlank::InsideFrame);
    return 0;
}
