#pragma once

#include "profile/CanAerospaceLine.h"
#include "profile/ValueText.h"
#include "traffic/FormatBytes.h"
#include "traffic/ReceiveColumns.h"
#include "traffic/ReceiveTable.h"

#include <QString>

#include <array>

/// Lines of 16 bytes that the largest frame takes.
inline constexpr int receiveLineCount = 4;

/// The texts of one row's cells, by the columns of a display mode.
struct ReceiveRowText
{
    static constexpr std::size_t cellCapacity = zul::valueTextCapacity;
    static constexpr std::size_t lineCapacity = zul::canAerospaceLineCapacity;

    template <typename Column>
    const char* cell(Column column) const
    {
        return cells[static_cast<std::size_t>(column)];
    }

    char cells[mostReceiveColumns][cellCapacity];
    /// By column: whether the cell gets its text. Others keep what they show.
    std::array<bool, mostReceiveColumns> isWritten;
    /// The payload column of the row's lines, the first one included.
    char lines[receiveLineCount][lineCapacity];
    /// False where `lines` count for nothing: the lines then keep what they show.
    bool hasLines;
    bool isError; ///< of an error frame
};

/// The texts of `row` in the display mode CAN; `numberType` 1 is hexadecimal, as in all of these.
void receiveRowText(const ReceiveRow& row, int numberType, ReceiveRowText& text);

/// In the display mode CANaerospace: all lines of the row have the same text.
void receiveCanAerospaceText(const ReceiveRow& row, int numberType, ReceiveRowText& text);

/// In the display mode ARINC 825 Raw.
void receiveRawText(const ReceiveRow& row, int numberType, ReceiveRowText& text);

/// In the display mode ARINC 825 Profile. RCI, parameter and unit are not among them: they stand
/// since the row was made, see `receiveRowNames`.
///
/// Deliberate: an error frame empties RCI and parameter, so that they are lost until the row is
/// made anew.
void receiveProfileText(const ReceiveRow& row, const ReceiveParameter& parameter,
                        const ProfileStore& store, int numberType, ReceiveRowText& text);

/// What a new row of the display mode ARINC 825 Profile shows and keeps.
struct ReceiveRowNames
{
    char rci; ///< letter of the redundancy channel
    QString parameter;
    QString unit;
};

ReceiveRowNames receiveRowNames(const ReceiveRow& row, const ReceiveParameter& parameter);

/// Whether the payload of `left` comes before that of `right`, byte by byte; of two that agree as
/// far as they go, the shorter one.
bool isPayloadLess(const zul::MessageCan& left, const zul::MessageCan& right);

/// Whether the line (1 to 3) below a row's first line is shown for that many bytes.
bool isReceiveLineShown(int line, std::uint32_t byteCount);
