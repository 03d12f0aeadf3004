#pragma once

#include "modules/support/Bytes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace cannetwork {

using namespace canmodule; // NOLINT(google-build-using-namespace)

/// Kinds of values of MessagePack.
enum class PackKind { Nil, Boolean, Unsigned, Negative, Real, Text, Binary, Array, Map, Extension };

/// One value, or the head of an array or a map. Texts and bytes stay where they are.
struct PackValue
{
    PackKind kind = PackKind::Nil;
    bool isTrue = false;      ///< of a boolean
    std::uint64_t number = 0; ///< of an unsigned number; of a negative one its pattern
    double real = 0.0;        ///< of a real number
    ByteView bytes;           ///< of a text, of bytes, or of an extension
    std::uint32_t count = 0;  ///< entries of an array; pairs of a map
};

/// Reads MessagePack (the public format of that name) from bytes of unknown origin. Nothing is
/// allocated, and nothing behind the end is looked at.
class PackReader
{
public:
    explicit PackReader(ByteView bytes) : m_bytes(bytes) {}

    /// Reads a value or a head. False if the bytes end before it does, or at the one byte that
    /// begins no value.
    bool read(PackValue& value);
    /// Goes over a value with all that is in it, at most `maxDepth` deep.
    bool skip();

    bool isAtEnd() const { return m_place == m_bytes.size; }
    /// The bytes ended early.
    bool isCut() const { return m_isCut; }

private:
    static constexpr int maxDepth = 16;

    bool skip(int depth);
    bool number(std::size_t bytes, std::uint64_t& value);
    bool bytes(PackKind kind, std::size_t lengthBytes, std::size_t extra, PackValue& value);
    bool entries(PackKind kind, std::size_t lengthBytes, PackValue& value);
    bool fixed(std::uint8_t head, PackValue& value);
    bool sized(std::uint8_t head, PackValue& value);
    bool numeric(std::uint8_t head, PackValue& value);
    bool take(std::size_t count, ByteView& bytes);

    ByteView m_bytes;
    std::size_t m_place = 0;
    bool m_isCut = false;
};

/// Writes MessagePack into a buffer of fixed size; what does not fit is left out.
template <std::size_t Size>
class PackWriter
{
public:
    void map(std::uint8_t pairs) { put(static_cast<std::uint8_t>(0x80U | pairs)); } ///< up to 15
    void boolean(bool isTrue) { put(isTrue ? 0xC3 : 0xC2); }
    void nil() { put(0xC0); }

    /// Up to 31 characters.
    void text(std::string_view text)
    {
        put(static_cast<std::uint8_t>(0xA0U | text.size()));
        for (const char letter : text) {
            put(static_cast<std::uint8_t>(letter));
        }
    }

    void number(std::uint32_t value)
    {
        if (value < 0x80U) {
            put(static_cast<std::uint8_t>(value));
        } else {
            put(0xCE);
            big(value, 4);
        }
    }

    void real(double value);

    /// Up to 255 bytes.
    void binary(ByteView bytes)
    {
        put(0xC4);
        put(static_cast<std::uint8_t>(bytes.size));
        for (std::size_t i = 0; i < bytes.size; ++i) {
            put(bytes.data[i]);
        }
    }

    ByteView bytes() const { return {m_bytes.data(), m_size}; }
    void clear() { m_size = 0; }

private:
    void put(std::uint8_t byte)
    {
        if (m_size < Size) {
            m_bytes[m_size++] = byte;
        }
    }

    void big(std::uint64_t value, unsigned bytes)
    {
        while (bytes > 0) {
            --bytes;
            put(static_cast<std::uint8_t>(value >> (8U * bytes)));
        }
    }

    std::array<std::uint8_t, Size> m_bytes{};
    std::size_t m_size = 0;
};

/// The bits of an IEEE 754 number, and back.
std::uint64_t bitsOf(double value);
double realOf(std::uint64_t bits);
double realOf(std::uint32_t bits);

template <std::size_t Size>
void PackWriter<Size>::real(double value)
{
    put(0xCB);
    big(bitsOf(value), 8);
}

} // namespace cannetwork
