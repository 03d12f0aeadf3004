#include "modules/network/MsgPack.h"

#include <cstring>

namespace cannetwork {

std::uint64_t bitsOf(double value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

double realOf(std::uint64_t bits)
{
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

double realOf(std::uint32_t bits)
{
    float value = 0.0F;
    std::memcpy(&value, &bits, sizeof value);
    return static_cast<double>(value);
}

bool PackReader::take(std::size_t count, ByteView& bytes)
{
    if (count > m_bytes.size - m_place) {
        m_isCut = true;
        return false;
    }
    bytes = {m_bytes.data + m_place, count};
    m_place += count;
    return true;
}

bool PackReader::number(std::size_t bytes, std::uint64_t& value)
{
    ByteView taken;
    if (!take(bytes, taken)) {
        return false;
    }
    value = 0;
    for (std::size_t i = 0; i < bytes; ++i) {
        value = value << 8U | taken.data[i];
    }
    return true;
}

bool PackReader::bytes(PackKind kind, std::size_t lengthBytes, std::size_t extra, PackValue& value)
{
    std::uint64_t length = 0;
    value.kind = kind;
    return number(lengthBytes, length) &&
           take(static_cast<std::size_t>(length) + extra, value.bytes);
}

bool PackReader::entries(PackKind kind, std::size_t lengthBytes, PackValue& value)
{
    std::uint64_t count = 0;
    value.kind = kind;
    if (!number(lengthBytes, count)) {
        return false;
    }
    value.count = static_cast<std::uint32_t>(count);
    return true;
}

bool PackReader::read(PackValue& value)
{
    value = {};
    ByteView head;
    if (!take(1, head)) {
        return false;
    }
    const std::uint8_t byte = head.data[0];
    return byte < 0xC0 || byte >= 0xE0 ? fixed(byte, value) : sized(byte, value);
}

// Heads that hold their value or length themselves.
bool PackReader::fixed(std::uint8_t head, PackValue& value)
{
    if (head < 0x80) {
        value.kind = PackKind::Unsigned;
        value.number = head;
        return true;
    }
    if (head >= 0xE0) {
        value.kind = PackKind::Negative;
        value.number = ~std::uint64_t{0xFF} | head;
        return true;
    }
    if (head < 0xA0) {
        value.kind = head < 0x90 ? PackKind::Map : PackKind::Array;
        value.count = head & 0x0FU;
        return true;
    }
    value.kind = PackKind::Text;
    return take(head & 0x1FU, value.bytes);
}

// Heads from 0xC0 to 0xDF, by the format's table. Of each kind the sizes double from head to head.
bool PackReader::sized(std::uint8_t head, PackValue& value)
{
    const auto size = [head](std::uint8_t first) { return std::size_t{1} << (head - first); };
    switch (head) {
    case 0xC0:
        return true;
    case 0xC2:
    case 0xC3:
        value.kind = PackKind::Boolean;
        value.isTrue = head == 0xC3;
        return true;
    case 0xC4:
    case 0xC5:
    case 0xC6:
        return bytes(PackKind::Binary, size(0xC4), 0, value);
    case 0xC7:
    case 0xC8:
    case 0xC9:
        return bytes(PackKind::Extension, size(0xC7), 1, value);
    case 0xD4:
    case 0xD5:
    case 0xD6:
    case 0xD7:
    case 0xD8:
        value.kind = PackKind::Extension;
        return take(size(0xD4) + 1, value.bytes);
    case 0xD9:
    case 0xDA:
    case 0xDB:
        return bytes(PackKind::Text, size(0xD9), 0, value);
    case 0xDC:
    case 0xDD:
        return entries(PackKind::Array, head == 0xDC ? 2 : 4, value);
    case 0xDE:
    case 0xDF:
        return entries(PackKind::Map, head == 0xDE ? 2 : 4, value);
    default:
        return numeric(head, value);
    }
}

// Heads of numbers, from 0xCA to 0xD3.
bool PackReader::numeric(std::uint8_t head, PackValue& value)
{
    if (head < 0xCA || head > 0xD3) {
        return false; // 0xC1 is never used
    }
    if (head <= 0xCB) {
        value.kind = PackKind::Real;
        if (!number(head == 0xCA ? 4 : 8, value.number)) {
            return false;
        }
        value.real =
            head == 0xCA ? realOf(static_cast<std::uint32_t>(value.number)) : realOf(value.number);
        return true;
    }
    const bool isSigned = head >= 0xD0;
    const unsigned bits = 8U << (head & 3U); // from 0xCC and from 0xD0 on
    value.kind = PackKind::Unsigned;
    if (!number(bits / 8U, value.number) || !isSigned) {
        return !m_isCut;
    }
    const std::uint64_t sign = std::uint64_t{1} << (bits - 1U);
    if ((value.number & sign) != 0) {
        value.kind = PackKind::Negative;
    }
    value.number = (value.number ^ sign) - sign;
    return true;
}

bool PackReader::skip()
{
    return skip(0);
}

bool PackReader::skip(int depth)
{
    PackValue value;
    if (depth >= maxDepth || !read(value)) {
        return false;
    }
    const std::uint64_t inner =
        value.kind == PackKind::Map ? 2ULL * value.count : std::uint64_t{value.count};
    for (std::uint64_t i = 0; i < inner; ++i) {
        if (!skip(depth + 1)) {
            return false;
        }
    }
    return true;
}

} // namespace cannetwork
