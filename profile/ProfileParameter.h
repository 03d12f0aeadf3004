#pragma once

#include "profile/Serial.h"

#include <QMetaType>
#include <QString>

#include <cstdint>

/// What a `ProfileParameter` describes. The numbers are stored in project files.
enum class ParameterKind : std::uint32_t {
    Arinc825 = 0,     ///< a parameter of an ARINC 825 profile; `dtc` is an ARINC 825 data type
    CanAerospace = 1, ///< `dtc` is a CANaerospace data type
    Raw = 2           ///< bytes of a frame as they lie; `dtc` is an index of `rawSelections`
};

/// One parameter: where a value lies in a CAN frame and how to read it. Copied by value, also
/// through signals; a copy keeps the serial of its source.
///
/// Positions are byte and bit, byte 0 first on the wire; a start position is that of the least
/// significant bit, an end position that of the most significant one. The numbers come from files
/// as they stand there and may lie outside every range.
struct ProfileParameter
{
    ParameterKind parameterKind = ParameterKind::Raw;
    std::uint32_t lcc = 0;  ///< logical communication channel
    std::uint32_t fid = 0;  ///< function code
    std::uint32_t doc = 0;  ///< data object code; the NID on all channels but EEC and NOC
    std::uint32_t dfid = 0; ///< function code of the server
    std::uint32_t sid = 0;  ///< service identifier
    std::uint32_t lcl = 0;  ///< local data bit
    std::uint32_t pvt = 0;  ///< private data bit
    std::uint32_t sppByte = 0;
    std::uint32_t sppBit = 0;
    std::uint32_t eppByte = 0;
    std::uint32_t eppBit = 0;
    std::uint32_t puc = 0;                      ///< unit code
    QString unitLabel = QStringLiteral("Unit"); ///< from the attribute "pua" only
    QString typeName = QStringLiteral("FLOAT"); ///< DTN as it stands in the profile
    std::uint32_t dtc = 0;                      ///< data type code of the kind
    std::int32_t enumId = 0;                    ///< -1 if DTN names nothing known
    QString nme = QStringLiteral("NewPara");    ///< name
    QString pun = QStringLiteral("Unit");       ///< unit name
    double min = 0.0;                           ///< lowest value in engineering units
    double max = 1.0;                           ///< highest value in engineering units
    double lsb = 0.0;                           ///< weight of the lowest bit
    std::int32_t upr = 0;                       ///< update period in ms
    QString notes = QStringLiteral("Notes");    ///< NTS
    std::uint32_t rci = 0;                      ///< redundancy channel; XML only
    double lat = 0.0;                           ///< latency; XML only
    std::uint32_t id = 0;                       ///< identifier as composed by the reader
    std::uint32_t endian = 1;                   ///< 0 little, 1 big; raw selections only
    QString color = QStringLiteral("#ff8800");  ///< of its plot
    bool showSamples = false;                   ///< plot option
    bool autoScale = false;                     ///< plot option
    double yMin = 0.0;                          ///< lower end of the plot
    double yMax = 100.0;                        ///< upper end of the plot
    double scaleOffset = 0.0;                   ///< kinds CanAerospace and Raw
    double scaleFactor = 1.0;                   ///< kinds CanAerospace and Raw
    std::uint32_t serial = zul::nextSerial();   ///< identity of the record
};

Q_DECLARE_METATYPE(ProfileParameter)
