#pragma once

#include "project/SendMsg.h"

#include <QString>

#include <array>
#include <cstdint>

/// What the editor of CANaerospace messages makes of what is entered. The payload is header (node
/// id, data type, service code, message code) and value, most significant byte first.
///
/// Text of numbers: if it holds "0x" anywhere, all of these pairs are taken out and the rest is
/// hexadecimal, else it is decimal. Text that is no number, or one out of the range of its type, is
/// 0.
namespace canaerospaceentry {

/// How a value is entered.
enum class ValuePage : std::uint8_t { SingleLine, TwoInputs, FourInputs, Binary, Slider };

/// What a value is.
enum class ValueKind : std::uint8_t {
    None,
    Float,
    Signed32,   ///< entered and shown with a sign
    Unsigned32, ///< entered and shown without
    Word32,     ///< entered with a sign, shown without
    Bits,
    Signed16,
    Unsigned16,
    Signed8,
    Unsigned8,
    Characters
};

/// How the values of one data type are entered.
struct ValueEntry
{
    ValuePage page;
    ValueKind kind;
    int count; ///< inputs that can be used; of `Bits` the bytes, of `Characters` the letters
};

/// By data type code; the names and the byte counts are those of `zul::canAerospaceTypes`.
inline constexpr std::array<ValueEntry, 30> valueEntries{{
    {ValuePage::SingleLine, ValueKind::None, 0},       // NODATA
    {ValuePage::SingleLine, ValueKind::None, 0},       // ERROR
    {ValuePage::Slider, ValueKind::Float, 1},          // FLOAT
    {ValuePage::SingleLine, ValueKind::Signed32, 1},   // LONG
    {ValuePage::SingleLine, ValueKind::Unsigned32, 1}, // ULONG
    {ValuePage::Binary, ValueKind::Bits, 4},           // BLONG
    {ValuePage::TwoInputs, ValueKind::Signed16, 1},    // SHORT
    {ValuePage::TwoInputs, ValueKind::Unsigned16, 1},  // USHORT
    {ValuePage::Binary, ValueKind::Bits, 2},           // BSHORT
    {ValuePage::FourInputs, ValueKind::Signed8, 1},    // CHAR
    {ValuePage::FourInputs, ValueKind::Unsigned8, 1},  // UCHAR
    {ValuePage::Binary, ValueKind::Bits, 1},           // BCHAR
    {ValuePage::TwoInputs, ValueKind::Signed16, 2},    // SHORT_2
    {ValuePage::TwoInputs, ValueKind::Unsigned16, 2},  // USHORT_2
    {ValuePage::Binary, ValueKind::Bits, 4},           // BSHORT_2
    {ValuePage::FourInputs, ValueKind::Signed8, 4},    // CHAR_4
    {ValuePage::FourInputs, ValueKind::Unsigned8, 4},  // UCHAR_4
    {ValuePage::Binary, ValueKind::Bits, 4},           // BCHAR_4
    {ValuePage::FourInputs, ValueKind::Signed8, 2},    // CHAR_2
    {ValuePage::FourInputs, ValueKind::Unsigned8, 2},  // UCHAR_2
    {ValuePage::Binary, ValueKind::Bits, 2},           // BCHAR_2
    {ValuePage::SingleLine, ValueKind::Word32, 1},     // MEMID
    {ValuePage::SingleLine, ValueKind::Word32, 1},     // CHKSUM
    {ValuePage::SingleLine, ValueKind::Characters, 1}, // ACHAR
    {ValuePage::SingleLine, ValueKind::Characters, 2}, // ACHAR_2
    {ValuePage::SingleLine, ValueKind::Characters, 4}, // ACHAR_4
    {ValuePage::FourInputs, ValueKind::Signed8, 3},    // CHAR_3
    {ValuePage::FourInputs, ValueKind::Unsigned8, 3},  // UCHAR_3
    {ValuePage::Binary, ValueKind::Bits, 3},           // BCHAR_3
    {ValuePage::SingleLine, ValueKind::Characters, 3}, // ACHAR_3
}};

inline constexpr std::uint32_t headerBytes = 4;
inline constexpr int valueBits = 32;
/// Length of an input that the data type does not bound, in letters.
inline constexpr int openLength = 100;
inline constexpr int sliderMaximum = 1000; ///< the slider goes from 0 to this

/// The code of the message's data type.
std::uint8_t dataType(const SendMsg& message);
/// Whether the data type is one of the table; what is in use stays in use if it is not.
bool isKnownType(const SendMsg& message);
/// Of the message's data type; of one beyond the table a single line without a value.
ValueEntry valueEntry(const SendMsg& message);
/// Most letters of a single line for the message's data type.
int lineLength(const SendMsg& message);
/// The lowest bit that the data type has, 0 to 24, the highest being 31.
int lowestBit(const SendMsg& message);

/// Sets data type and byte count.
void setDataType(SendMsg& message, int code);
/// Raises the byte count to that of the header, if it is less.
void ensureHeader(SendMsg& message);

/// Enters the text of the single line.
void enterLine(SendMsg& message, const QString& text);
/// Enters one of the two inputs, 0 or 1.
void enterShort(SendMsg& message, int input, const QString& text);
/// Enters one of the four inputs, 0 to 3.
void enterByte(SendMsg& message, int input, const QString& text);
/// What these inputs show of the payload; an empty text for a data type that has another page.
QString lineText(const SendMsg& message, std::int32_t numberType);
QString shortText(const SendMsg& message, int input, std::int32_t numberType);
QString byteText(const SendMsg& message, int input, std::int32_t numberType);

/// The value as one number.
std::uint32_t valueWord(const SendMsg& message);
void setValueWord(SendMsg& message, std::uint32_t word);
/// Sets or clears one bit, 0 to 31.
void setValueBit(SendMsg& message, int bit, bool on);

/// A floating-point number as it was typed; text that is none gives 0.
float singleOf(const QString& text);
/// "%.2f".
QString singleText(float value);
/// Sets `actual`, and the value to its bits.
void setActual(SendMsg& message, float actual);
/// What the slider stands for at `position`, between the message's `min` and `max`; always finite,
/// and 0 if the limits are no numbers.
float actualAt(const SendMsg& message, int position);
/// Where the slider stands for the message's `actual`, 0 to `sliderMaximum`; 0 if the limits are
/// equal or no numbers.
int sliderPosition(const SendMsg& message);
/// The same for a slider that stands at `position`: it stays if `actual` is what it stands for
/// there. What the slider has set often is one step lower by `sliderPosition`, and a key that goes
/// up by one step would not get past it.
int sliderPositionFrom(const SendMsg& message, int position);

/// The service code of what was chosen or typed: the number before the first blank, its low byte.
std::uint8_t serviceCode(const QString& text);
/// Whether a service code is shown by its entry of the list, and not as a number.
bool hasServiceEntry(std::uint32_t id, std::uint8_t code);
/// A service code as a number, "0x%x" or "%d".
QString serviceText(std::uint8_t code, std::int32_t numberType);

} // namespace canaerospaceentry
