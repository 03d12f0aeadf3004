#pragma once

#include "profile/Serial.h"

#include <QString>

#include <cstdint>
#include <map>
#include <vector>

// The records of an LRU document: what a device on the bus sends and receives, on which interfaces,
// and what its parameters mean. Only the editor of these documents works with them; the profile
// store knows nothing of them. Records that files refer to by name are referred to by name here
// too.
//
// Fields that are a "code" stand in the files as a name of a list of `Lru825Schema`. The defaults
// are those of a record that the editor adds.

/// A CAN interface of the LRU, with its bit timing.
struct Lru825Interface
{
    std::uint32_t bitRate = 0; ///< code
    QString name = QStringLiteral("InterfaceName");
    std::uint32_t rci = 0; ///< code
    QString comment;
    std::int32_t timeQuantumPerBit = 0;
    std::int32_t resyncJumpWidth = 0;
    std::int32_t syncSeg = 0;
    std::int32_t propSeg = 0;
    std::int32_t phaseSeg1 = 0;
    std::int32_t phaseSeg2 = 0;
    std::uint32_t samplingPointMode = 0; ///< code
    std::uint32_t serial = zul::nextLru825Serial();
};

/// An interface on which a message travels.
struct Lru825Assignment
{
    QString name;          ///< of the interface
    std::uint32_t rci = 0; ///< code
    std::uint32_t serial = zul::nextLru825Serial();
};

/// A position in a payload.
struct Lru825Position
{
    std::uint32_t byte = 0;
    std::uint32_t bit = 0;
};

/// A parameter of the list, and where it lies in a message.
struct Lru825Reference
{
    QString name = QStringLiteral("Parameter"); ///< of the parameter
    Lru825Position spp;                         ///< start of the payload
    Lru825Position epp;                         ///< end of the payload
    Lru825Position pvsSpp;                      ///< start of the status
    Lru825Position pvsEpp;                      ///< end of the status
    std::uint32_t serial = zul::nextLru825Serial();
};

/// What a message carries.
struct Lru825DataField
{
    QString payloadProtocol;
    std::int32_t dlc = 0;
    bool highIntegrity = false;
    QString name;
    std::vector<Lru825Reference> parameters;
};

/// A message that the LRU sends or receives.
struct Lru825Message
{
    QString name = QStringLiteral("MessageName");
    std::uint32_t identifierType = 0;   ///< code
    std::uint32_t identifierLength = 0; ///< code
    std::uint32_t defaultLcc = 0;       ///< code
    std::uint32_t fid = 0;
    std::uint32_t pvt = 0;
    std::uint32_t doc = 0;
    std::uint32_t lcl = 0;
    std::uint32_t fsb = 0;
    double txp = 0.0;        ///< 0 after reading a file that was written with one
    double latencyMax = 0.0; ///< 0 after reading a file that was written with one
    std::int32_t defaultPort = 0;
    std::uint32_t fmc11BitId = 0;
    std::uint32_t impliedFunctionalStatus = 0; ///< code
    std::vector<Lru825Assignment> assignments;
    Lru825DataField dataField;
    std::uint32_t serial = zul::nextLru825Serial();
};

/// A name for a value of a parameter.
struct Lru825EnumEntry
{
    QString key = QStringLiteral("Value");
    std::int32_t value = 0;
    std::uint32_t serial = zul::nextLru825Serial();
};

/// A parameter of the list.
struct Lru825Parameter
{
    QString name = QStringLiteral("Parameter");
    QString pua;           ///< unit, any text
    std::uint32_t dtn = 0; ///< code of the data type
    double max = 0.0;
    double min = 0.0;
    double resolution = 0.0;
    double offset = 0.0;
    QString notes; ///< NTS
    QString comment;
    std::uint32_t fid = 0;
    std::vector<Lru825EnumEntry> enumEntries;
    std::uint32_t serial = zul::nextLru825Serial();
};

/// One LRU document. Its maps are keyed by serial and so in the order of creation.
struct Lru825Document
{
    QString id; ///< any text
    QString name;
    std::int32_t major = 0;   ///< without effect, as are the two below
    std::int32_t minor = 0;   ///< without effect
    std::int32_t version = 0; ///< without effect
    QString comment;

    QString lruName;
    QString nodeId;      ///< any text
    QString nodeAddress; ///< any text
    QString lruComment;
    std::map<std::uint32_t, Lru825Interface> interfaces;
    std::map<std::uint32_t, Lru825Message> transmitMessages;
    std::map<std::uint32_t, Lru825Message> receiveMessages;

    QString parameterListComment;
    std::map<std::uint32_t, Lru825Parameter> parameters;

    QString fileName;        ///< as given to the reader
    bool valid = true;       ///< false once anything was reported
    QString result;          ///< report of the reading, as HTML
    int foreignElements = 0; ///< that the reading passed over: they would be lost on writing
};
