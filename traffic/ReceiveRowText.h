#pragma once

#include "traffic/FormatBytes.h"
#include "traffic/ReceiveTable.h"

#include <array>

/// Columns of the Receive window in the display modes CAN and CANaerospace.
enum class ReceiveColumn : int { Count = 0, Time, Id, Length, Message };

inline constexpr int receiveColumnCount = 5;

/// Lines of 16 bytes that the largest frame takes.
inline constexpr int receiveLineCount = 4;

/// The texts of one row's cells.
struct ReceiveRowText
{
    static constexpr std::size_t cellCapacity = 40;

    char count[cellCapacity];
    char time[cellCapacity];
    char id[cellCapacity];
    char length[cellCapacity];
    char lines[receiveLineCount][payloadLineCapacity];
    /// False for an error frame: the message column then keeps what it shows.
    bool hasLines;
};

/// The texts of `row` in the display mode CAN; `numberType` 1 is hexadecimal.
void receiveRowText(const ReceiveRow& row, int numberType, ReceiveRowText& text);

/// Whether the line (1 to 3) below a row's first line is shown for that many bytes.
bool isReceiveLineShown(int line, std::uint32_t byteCount);
