#pragma once

#include "message/MessageData.h"

#include <QString>

#include <cstdint>

/// One line of the Transmit window.
struct SendMsg
{
    QString name = QStringLiteral("NoName");
    std::uint32_t id = 0; ///< CAN identifier
    std::uint32_t byteCount = 0;
    std::int32_t rate = 0;    ///< transmit period in ms; 0 means single shot
    std::int32_t running = 0; ///< 1 while the periodic transmission of this line runs
    double lastSent = 0.0;    ///< application-clock time of the last periodic send, seconds
    float min = 0.0F;         ///< bottom of the value slider
    float max = 1.0F;         ///< top of the value slider
    float actual = 0.0F;      ///< the slider's value
    zul::MessageData data;
    std::uint32_t mode = 0; ///< value of `zul::MessageCan::EMsgMode`
};

/// Reads bytes that stand in `text`, separated by blanks, until the payload is full. `base` is that
/// of the numbers, 0 if their prefixes tell it; of larger numbers the low byte counts, and what is
/// no number is 0.
void readPayloadText(const QString& text, int base, zul::MessageData& data);
