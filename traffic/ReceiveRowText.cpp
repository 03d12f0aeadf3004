#include "traffic/ReceiveRowText.h"

#include "core/NumberType.h"
#include "core/TextWriter.h"
#include "profile/Arinc825Id.h"
#include "traffic/MessageModes.h"

#include <algorithm>

using zul::MessageCan;

namespace {

// Writes one cell.
template <typename Column>
TextWriter cellWriter(ReceiveRowText& text, Column column)
{
    const auto index = static_cast<std::size_t>(column);
    text.isWritten[index] = true;
    return {text.cells[index], ReceiveRowText::cellCapacity};
}

template <typename Column>
void emptyCell(ReceiveRowText& text, Column column)
{
    cellWriter(text, column);
}

void begin(const MessageCan& frame, ReceiveRowText& text)
{
    text.isWritten.fill(false);
    text.isError = frame.frameType() == MessageCan::EFrameType::Error;
    text.hasLines = false;
}

void writeLines(const MessageCan& frame, int numberType, ReceiveRowText& text)
{
    text.hasLines = true;
    for (int line = 0; line < receiveLineCount; ++line) {
        char* const buffer = text.lines[line];
        const int offset = line * bytesPerLine;
        if (isHexadecimal(numberType)) {
            formatBytesHex(buffer, payloadLineCapacity, frame, offset);
        } else {
            formatBytesDec(buffer, payloadLineCapacity, frame, offset);
        }
    }
}

// All of the display modes CAN and CANaerospace but the payload.
void writeCanCells(const ReceiveRow& row, int numberType, ReceiveRowText& text)
{
    const MessageCan& frame = row.msg;
    begin(frame, text);
    cellWriter(text, ReceiveColumn::Count).appendDecimal(static_cast<int>(row.count));
    cellWriter(text, ReceiveColumn::Time).appendTime(frame.timeStamp());
    TextWriter id = cellWriter(text, ReceiveColumn::Id);
    TextWriter length = cellWriter(text, ReceiveColumn::Length);
    if (text.isError) {
        id.append(errorFrameText);
        return;
    }
    id.append(messageModePrefix(static_cast<std::uint32_t>(frame.mode())));
    if (isHexadecimal(numberType)) {
        id.append(" 0x");
        id.appendHexadecimal(frame.id());
    } else {
        id.append(' ');
        id.appendDecimal(static_cast<int>(frame.id()));
    }
    length.append(frame.frameType() == MessageCan::EFrameType::Remote ? 'R' : 'D');
    length.appendDecimal(static_cast<int>(frame.byteCount()));
}

} // namespace

void receiveRowText(const ReceiveRow& row, int numberType, ReceiveRowText& text)
{
    writeCanCells(row, numberType, text);
    if (!text.isError) {
        writeLines(row.msg, numberType, text);
    }
}

void receiveCanAerospaceText(const ReceiveRow& row, int numberType, ReceiveRowText& text)
{
    writeCanCells(row, numberType, text);
    if (text.isError) {
        return;
    }
    text.hasLines = true;
    zul::canAerospaceLine(text.lines[0], ReceiveRowText::lineCapacity, row.msg, numberType);
    for (int line = 1; line < receiveLineCount; ++line) {
        TextWriter(text.lines[line], ReceiveRowText::lineCapacity).append(text.lines[0]);
    }
}

void receiveRawText(const ReceiveRow& row, int numberType, ReceiveRowText& text)
{
    const MessageCan& frame = row.msg;
    const std::uint32_t id = frame.id();
    begin(frame, text);
    cellWriter(text, ReceiveRawColumn::Count).appendDecimal(static_cast<int>(row.count));
    TextWriter idText = cellWriter(text, ReceiveRawColumn::Id);
    if (isHexadecimal(numberType)) {
        idText.append("0x");
        idText.appendHexadecimal(id, TextWriter::Letters::Small);
    } else {
        idText.appendDecimal(static_cast<int>(id));
    }
    cellWriter(text, ReceiveRawColumn::Time).appendTime(frame.timeStamp());
    if (text.isError) {
        cellWriter(text, ReceiveRawColumn::Lcc).append(errorFrameText);
        emptyCell(text, ReceiveRawColumn::Fields);
        emptyCell(text, ReceiveRawColumn::Rci);
        emptyCell(text, ReceiveRawColumn::Data);
        return;
    }
    cellWriter(text, ReceiveRawColumn::Lcc).append(zul::arinc825::channel(id).name);
    constexpr auto fields = static_cast<std::size_t>(ReceiveRawColumn::Fields);
    // The reserved channel has no fields: the cell stays as it stands.
    text.isWritten[fields] =
        zul::arinc825::fieldText(text.cells[fields], ReceiveRowText::cellCapacity, id, numberType);
    cellWriter(text, ReceiveRawColumn::Rci).append(zul::arinc825::rciLetter(id));
    writeLines(frame, numberType, text);
}

void receiveProfileText(const ReceiveRow& row, const ReceiveParameter& parameter,
                        const ProfileStore& store, int numberType, ReceiveRowText& text)
{
    const MessageCan& frame = row.msg;
    begin(frame, text);
    cellWriter(text, ReceiveProfileColumn::Count).appendDecimal(static_cast<int>(row.count));
    // Of an identifier alone, cheap to write, and compared with the cell anyway.
    constexpr auto id = static_cast<std::size_t>(ReceiveProfileColumn::Id);
    zul::arinc825::parameterKeyIdText(text.cells[id], ReceiveRowText::cellCapacity, frame.id());
    text.isWritten[id] = true;
    if (text.isError) {
        cellWriter(text, ReceiveProfileColumn::Key).append(errorFrameText);
        emptyCell(text, ReceiveProfileColumn::Rci);
        emptyCell(text, ReceiveProfileColumn::Parameter);
        emptyCell(text, ReceiveProfileColumn::Value);
        return;
    }
    constexpr auto key = static_cast<std::size_t>(ReceiveProfileColumn::Key);
    zul::arinc825::parameterKeyText(text.cells[key], ReceiveRowText::cellCapacity, frame.id(),
                                    numberType);
    text.isWritten[key] = true;
    constexpr auto value = static_cast<std::size_t>(ReceiveProfileColumn::Value);
    zul::textOf(text.cells[value], ReceiveRowText::cellCapacity, frame, store, parameter.parameter);
    text.isWritten[value] = true;
}

ReceiveRowNames receiveRowNames(const ReceiveRow& row, const ReceiveParameter& parameter)
{
    const char rci = zul::arinc825::rciLetter(row.msg.id());
    if (!parameter.isKnown) {
        return {rci, QStringLiteral("Unknown Parameter"), QString()};
    }
    return {rci, parameter.parameter.nme, parameter.parameter.pun};
}

bool isPayloadLess(const MessageCan& left, const MessageCan& right)
{
    const auto countOf = [](const MessageCan& frame) {
        constexpr auto most = static_cast<std::uint32_t>(zul::MessageData::size);
        return static_cast<std::int32_t>(std::min(frame.byteCount(), most));
    };
    const std::int32_t common = std::min(countOf(left), countOf(right));
    for (std::int32_t i = 0; i < common; ++i) {
        if (left.msg()[i] != right.msg()[i]) {
            return left.msg()[i] < right.msg()[i];
        }
    }
    return countOf(left) < countOf(right);
}

bool isReceiveLineShown(int line, std::uint32_t byteCount)
{
    return byteCount > static_cast<std::uint32_t>(line * bytesPerLine);
}
