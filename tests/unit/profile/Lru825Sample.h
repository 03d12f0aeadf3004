#pragma once

#include "profile/Lru825Document.h"

namespace zul::test {

inline Lru825Message sampleMessage()
{
    Lru825Message message;
    message.name = QStringLiteral("Status");
    message.identifierType = 3;
    message.identifierLength = 1;
    message.defaultLcc = 6;
    message.fid = 5;
    message.pvt = 1;
    message.doc = 100;
    message.lcl = 2;
    message.fsb = 3;
    message.txp = 12.0;
    message.latencyMax = 0.5;
    message.defaultPort = 7;
    message.fmc11BitId = 2047;
    message.impliedFunctionalStatus = 3;
    message.assignments.resize(2);
    message.assignments.at(0).name = QStringLiteral("can1");
    message.assignments.at(0).rci = 3;
    message.dataField.payloadProtocol = QStringLiteral("raw");
    message.dataField.dlc = 8;
    message.dataField.highIntegrity = true;
    message.dataField.name = QStringLiteral("field");
    message.dataField.parameters.resize(2);
    Lru825Reference& reference = message.dataField.parameters.at(0);
    reference.name = QStringLiteral("Speed");
    reference.spp = {1, 2};
    reference.epp = {3, 4};
    reference.pvsSpp = {5, 6};
    reference.pvsEpp = {7, 0};
    return message;
}

/// A document that has every field off its default in the first record of each kind, and a second
/// record as the editor adds it.
inline Lru825Document sampleDocument()
{
    Lru825Document document;
    document.id = QStringLiteral("free & easy");
    document.name = QStringLiteral("Document");
    document.major = 1;
    document.minor = 2;
    document.version = 3;
    document.comment = QStringLiteral("about it");
    document.lruName = QStringLiteral("Pump");
    document.nodeId = QStringLiteral("N-7");
    document.nodeAddress = QStringLiteral("0x10");
    document.lruComment = QStringLiteral("about the unit");
    document.parameterListComment = QStringLiteral("about the list");

    Lru825Interface can;
    can.bitRate = 4;
    can.name = QStringLiteral("can1");
    can.rci = 1;
    can.comment = QStringLiteral("first");
    can.timeQuantumPerBit = 16;
    can.resyncJumpWidth = 2;
    can.syncSeg = 1;
    can.propSeg = 7;
    can.phaseSeg1 = 5;
    can.phaseSeg2 = 3;
    can.samplingPointMode = 1;
    const Lru825Interface newInterface;
    document.interfaces = {{can.serial, can}, {newInterface.serial, newInterface}};

    const Lru825Message message = sampleMessage();
    document.transmitMessages = {{message.serial, message}};
    const Lru825Message newMessage;
    document.receiveMessages = {{newMessage.serial, newMessage}};

    Lru825Parameter speed;
    speed.name = QStringLiteral("Speed");
    speed.pua = QStringLiteral("m/s");
    speed.dtn = 15;
    speed.max = 2.5;
    speed.min = -1.5;
    speed.resolution = 0.125;
    speed.offset = -4.0;
    speed.notes = QStringLiteral("note");
    speed.comment = QStringLiteral("about it");
    speed.fid = 9;
    speed.enumEntries.resize(2);
    speed.enumEntries.at(0).key = QStringLiteral("off");
    speed.enumEntries.at(0).value = -1;
    const Lru825Parameter newParameter;
    document.parameters = {{speed.serial, speed}, {newParameter.serial, newParameter}};
    return document;
}

} // namespace zul::test
