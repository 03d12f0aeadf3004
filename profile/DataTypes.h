#pragma once

#include <array>
#include <cstdint>

namespace zul {

/// Data types of ARINC 825.
enum class ArincType : std::uint32_t {
    NoData = 0,
    Enum = 1,
    Char = 2,
    UChar = 3,
    AChar = 4,
    Short = 5,
    UShort = 6,
    Long = 7,
    ULong = 8,
    Float = 9,
    Long64 = 10,
    ULong64 = 11,
    Double = 12,
    Opaque = 13,
    Bool = 14,
    Bcd = 15
};

/// Where a value of a data type may lie.
enum class PositionRule {
    Zero,       ///< SPP and EPP are 0.0
    OneByte,    ///< one whole byte
    TwoBytes,   ///< two whole bytes, at an even byte of the frame
    FourBytes,  ///< four whole bytes, at byte 0 or 4
    EightBytes, ///< 7.0/0.7
    Free        ///< any bits, SPP not above EPP in value
};

struct ArincTypeInfo
{
    ArincType type; ///< the row's index
    const char* name;
    PositionRule positionRule;
};

inline constexpr std::array<ArincTypeInfo, 16> arincTypes{{
    {ArincType::NoData, "NODATA", PositionRule::Zero},
    {ArincType::Enum, "ENUM", PositionRule::Free},
    {ArincType::Char, "CHAR", PositionRule::OneByte},
    {ArincType::UChar, "UCHAR", PositionRule::OneByte},
    {ArincType::AChar, "ACHAR", PositionRule::OneByte},
    {ArincType::Short, "SHORT", PositionRule::TwoBytes},
    {ArincType::UShort, "USHORT", PositionRule::TwoBytes},
    {ArincType::Long, "LONG", PositionRule::FourBytes},
    {ArincType::ULong, "ULONG", PositionRule::FourBytes},
    {ArincType::Float, "FLOAT", PositionRule::FourBytes},
    {ArincType::Long64, "LONG64", PositionRule::EightBytes},
    {ArincType::ULong64, "ULONG64", PositionRule::EightBytes},
    {ArincType::Double, "DOUBLE", PositionRule::EightBytes},
    {ArincType::Opaque, "OPAQUE", PositionRule::Free},
    {ArincType::Bool, "BOOL", PositionRule::Free},
    {ArincType::Bcd, "BCD", PositionRule::Free},
}};

/// What the formats of a CANaerospace payload take. A type of fewer numbers prints the first ones.
enum class CanAerospacePayload : std::uint8_t {
    Word,           ///< one number of 32 bits
    Float,          ///< one single
    SignedShorts,   ///< two numbers of 16 bits
    UnsignedShorts, ///< two numbers of 16 bits
    SignedBytes,    ///< four bytes
    UnsignedBytes   ///< four bytes
};

/// A data type of CANaerospace, by its code in data byte 1 of the frame (the row's index).
struct CanAerospaceTypeInfo
{
    const char* name;              ///< in profiles
    const char* selectionName;     ///< in selection boxes
    const char* label;             ///< in decoded frames
    const char* decimalFormat;     ///< of the payload
    const char* hexadecimalFormat; ///< of the payload
    CanAerospacePayload payload;   ///< what both formats take
    int byteCount;                 ///< of the whole frame, header included
};

// clang-format off
inline constexpr std::array<CanAerospaceTypeInfo, 30> canAerospaceTypes{{
    {"AS_NODATA", "NODATA", "NODATA", "", "", CanAerospacePayload::UnsignedBytes, 4},
    {"AS_ERROR", "ERROR", "ERROR", "%d", "$%08x", CanAerospacePayload::Word, 4},
    {"AS_FLOAT", "FLOAT", "FLOAT", "%f", "%f", CanAerospacePayload::Float, 8},
    {"AS_LONG", "LONG", "LONG", "%d", "0x%08x", CanAerospacePayload::Word, 8},
    {"AS_ULONG", "ULONG", "ULONG", "%d", "0x%08x", CanAerospacePayload::Word, 8},
    {"AS_BLONG", "BLONG", "BLONG", "%d", "0x%08x", CanAerospacePayload::Word, 8},
    {"AS_SHORT", "SHORT", "SHORT", "%d", "0x%04hx", CanAerospacePayload::SignedShorts, 6},
    {"AS_USHORT", "USHORT", "USHORT", "0x%04hx", "0x%04hx", CanAerospacePayload::UnsignedShorts, 6},
    {"AS_BSHORT", "BSHORT", "BSHORT", "%d", "0x%04hx", CanAerospacePayload::UnsignedShorts, 6},
    {"AS_CHAR", "CHAR", "CHAR", "%d", "0x%02hhx", CanAerospacePayload::SignedBytes, 5},
    {"AS_UCHAR", "UCHAR", "UCHAR", "%d", "0x%hhx", CanAerospacePayload::UnsignedBytes, 5},
    {"AS_BCHAR", "BCHAR", "BCHAR", "%d", "0x%02hhx", CanAerospacePayload::UnsignedBytes, 5},
    {"AS_SHORT_2", "SHORT_2", "SHORT2", "%d %d", "0x%04hx 0x%04hx", CanAerospacePayload::SignedShorts, 8},
    {"AS_USHORT_2", "USHORT_2", "USHORT2", "%d %d", "0x%04hx 0x%04hx", CanAerospacePayload::UnsignedShorts, 8},
    {"AS_BSHORT_2", "BSHORT_2", "BSHORT2", "%d %d", "0x%04hx 0x%04hx", CanAerospacePayload::UnsignedShorts, 8},
    {"AS_CHAR_4", "CHAR_4", "CHAR4", "%d %d %d %d", "0x%02hx 0x%02hx 0x%02hx 0x%02hx", CanAerospacePayload::SignedBytes, 8},
    {"AS_UCHAR_4", "UCHAR_4", "UCHAR4", "%d %d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 8},
    {"AS_BCHAR_4", "BCHAR_4", "BCHAR4", "%d %d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 8},
    {"AS_CHAR_2", "CHAR_2", "CHAR2", "%d %d", "0x%02hhx 0x%02hhx", CanAerospacePayload::SignedBytes, 6},
    {"AS_UCHAR_2", "UCHAR_2", "UCHAR2", "%d %d", "0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 6},
    {"AS_BCHAR_2", "BCHAR_2", "BCHAR2", "%d %d", "0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 6},
    {"AS_MEMID", "MEMID", "MEMID", "%d", "0x%08x", CanAerospacePayload::Word, 8},
    {"AS_CHKSUM", "CHKSUM", "CHKSUM", "%d", "0x%08x", CanAerospacePayload::Word, 8},
    {"AS_ACHAR", "ACHAR", "ACHAR", "%c", "%c", CanAerospacePayload::UnsignedBytes, 5},
    {"AS_ACHAR_2", "ACHAR_2", "ACHAR2", "%c %c", "%c %c", CanAerospacePayload::UnsignedBytes, 6},
    {"AS_ACHAR_4", "ACHAR_4", "ACHAR4", "%c %c %c %c", "%c %c %c %c", CanAerospacePayload::UnsignedBytes, 8},
    {"AS_CHAR_3", "CHAR_3", "CHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", CanAerospacePayload::SignedBytes, 7},
    {"AS_UCHAR_3", "UCHAR_3", "UCHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 7},
    {"AS_BCHAR_3", "BCHAR_3", "BCHAR3", "%d %d %d", "0x%02hhx 0x%02hhx 0x%02hhx", CanAerospacePayload::UnsignedBytes, 7},
    {"AS_ACHAR_3", "ACHAR_3", "ACHAR3", "%c %c %c", "%c %c %c", CanAerospacePayload::UnsignedBytes, 7},
}};
// clang-format on

/// What a type code beyond the table is decoded as.
inline constexpr CanAerospaceTypeInfo unknownCanAerospaceType{"",
                                                              "",
                                                              "UNKNOWN",
                                                              "%d %d %d %d ",
                                                              "0x%02x 0x%02x 0x%02x 0x%02x ",
                                                              CanAerospacePayload::UnsignedBytes,
                                                              8};

/// Bytes of a frame that a raw selection reads, by its index.
inline constexpr std::array<const char*, 18> rawSelections{
    "Char 0",   "Char 1",   "Char 2",     "Char 3",     "Char 4",     "Char 5",
    "Char 6",   "Char 7",   "Short 0..1", "Short 2..3", "Short 4..5", "Short 6..7",
    "Int 0..3", "Int 4..7", "Float 0..3", "Float 4..7", "Long 0..7",  "Double 0..7"};

/// The raw selections in the order in which selection boxes offer them: the widest first.
inline constexpr std::array<std::uint32_t, rawSelections.size()> rawSelectionOrder{
    17, 14, 15, 16, 12, 13, 8, 9, 10, 11, 0, 1, 2, 3, 4, 5, 6, 7};

/// A byte order and its name in selections; the number is that of `ProfileParameter::endian`.
struct ByteOrderText
{
    std::uint32_t endian;
    const char* text;
};

inline constexpr std::array<ByteOrderText, 2> byteOrders{{{0, "Little Endian"}, {1, "Big Endian"}}};

} // namespace zul
