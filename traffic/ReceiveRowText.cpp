#include "traffic/ReceiveRowText.h"

#include "core/TextWriter.h"
#include "traffic/MessageModes.h"

#include <algorithm>

using zul::MessageCan;

namespace {

constexpr int decimal = static_cast<int>(NumberType::Decimal);
constexpr int hexadecimal = static_cast<int>(NumberType::Hexadecimal);

void writeLines(const MessageCan& frame, int numberType, ReceiveRowText& text)
{
    for (int line = 0; line < receiveLineCount; ++line) {
        char* const buffer = text.lines[line];
        buffer[0] = '\0';
        const int offset = line * bytesPerLine;
        if (numberType == decimal) {
            formatBytesDec(buffer, payloadLineCapacity, frame, offset);
        } else if (numberType == hexadecimal) {
            formatBytesHex(buffer, payloadLineCapacity, frame, offset);
        }
    }
}

} // namespace

void receiveRowText(const ReceiveRow& row, int numberType, ReceiveRowText& text)
{
    const MessageCan& frame = row.msg;
    TextWriter(text.count, sizeof text.count).appendDecimal(static_cast<int>(row.count));
    TextWriter(text.time, sizeof text.time).appendTime(frame.timeStamp());
    TextWriter id(text.id, sizeof text.id);
    TextWriter length(text.length, sizeof text.length);
    text.hasLines = frame.frameType() != MessageCan::EFrameType::Error;
    if (!text.hasLines) {
        id.append("ERROR FRAME");
        return;
    }
    id.append(messageModePrefix(static_cast<std::uint32_t>(frame.mode())));
    if (numberType == hexadecimal) {
        id.append(" 0x");
        id.appendHexadecimal(frame.id());
    } else {
        id.append(' ');
        id.appendDecimal(static_cast<int>(frame.id()));
    }
    length.append(frame.frameType() == MessageCan::EFrameType::Remote ? 'R' : 'D');
    length.appendDecimal(static_cast<int>(frame.byteCount()));
    writeLines(frame, numberType, text);
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
