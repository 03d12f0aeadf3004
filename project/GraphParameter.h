#pragma once

#include <QString>

#include <cstdint>

/// One trace of the oscilloscope: which parameter it shows, and how.
struct GraphParameter
{
    bool active = true;   ///< the trace is shown
    std::uint32_t id = 0; ///< CAN identifier
    QString name = QStringLiteral("NewPara");
    QString unit = QStringLiteral("Unit");
    QString color = QStringLiteral("#ff8800");
    std::int32_t kind = 2;         ///< 0 ARINC 825, 1 CANaerospace, 2 user defined
    std::int32_t dataTypeCode = 0; ///< data type code of the kind
    std::int32_t startByte = 0;    ///< position of the value's least significant bit
    std::int32_t startBit = 0;
    std::int32_t endByte = 0; ///< position of the value's most significant bit
    std::int32_t endBit = 0;
    double min = 0.0;
    double max = 1.0;
    double lsb = 0.0;        ///< weight of the lowest bit
    std::int32_t endian = 1; ///< 0 little, 1 big
    bool showSamples = false;
    bool autoScale = false;
    double yMin = 0.0; ///< the fixed scale
    double yMax = 100.0;
    double scaleOffset = 0.0;
    double scaleFactor = 1.0;
};
