#include "traffic/ReceiveRowText.h"

#include "traffic/MessageModes.h"

#include <cstdio>

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
    std::snprintf(text.count, sizeof text.count, "%d", static_cast<int>(row.count));
    std::snprintf(text.time, sizeof text.time, "%.4f", frame.timeStampDouble());
    text.hasLines = frame.frameType() != MessageCan::EFrameType::Error;
    if (!text.hasLines) {
        std::snprintf(text.id, sizeof text.id, "ERROR FRAME");
        text.length[0] = '\0';
        return;
    }
    const char* const prefix = messageModePrefix(static_cast<std::uint32_t>(frame.mode()));
    if (numberType == hexadecimal) {
        std::snprintf(text.id, sizeof text.id, "%s 0x%X", prefix, frame.id());
    } else {
        std::snprintf(text.id, sizeof text.id, "%s %d", prefix, static_cast<int>(frame.id()));
    }
    const char type = frame.frameType() == MessageCan::EFrameType::Remote ? 'R' : 'D';
    std::snprintf(text.length, sizeof text.length, "%c%d", type,
                  static_cast<int>(frame.byteCount()));
    writeLines(frame, numberType, text);
}

bool isReceiveLineShown(int line, std::uint32_t byteCount)
{
    return byteCount > static_cast<std::uint32_t>(line * bytesPerLine);
}
