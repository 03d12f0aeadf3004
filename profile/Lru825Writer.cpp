#include "profile/Lru825Writer.h"

#include "profile/Lru825Names.h"
#include "profile/Lru825Schema.h"
#include "profile/XmlSink.h"

namespace zul {

namespace {

namespace attribute = lru825::attribute;

class Writer
{
public:
    Writer(XmlSink& sink, const Lru825Schema& schema) : m_sink(sink), m_schema(schema) {}

    void write(const Lru825Document& document)
    {
        m_sink.start(lru825::root);
        m_sink.text(attribute::id, document.id);
        m_sink.text(attribute::name, document.name);
        m_sink.number(attribute::major, document.major);
        m_sink.number(attribute::minor, document.minor);
        m_sink.number(attribute::version, document.version);
        m_sink.text(attribute::comment, document.comment);
        lru(document);
        m_sink.start(lru825::parameterList);
        m_sink.text(attribute::comment, document.parameterListComment);
        for (const auto& [serial, record] : document.parameters) {
            parameter(record);
        }
        m_sink.end();
    }

private:
    void lru(const Lru825Document& document)
    {
        m_sink.start(lru825::lru);
        m_sink.text(attribute::name, document.lruName);
        m_sink.text(attribute::nodeId, document.nodeId);
        m_sink.text(attribute::nodeAddress, document.nodeAddress);
        m_sink.text(attribute::comment, document.lruComment);
        m_sink.start(lru825::interfaceList);
        for (const auto& [serial, record] : document.interfaces) {
            canInterface(record);
        }
        m_sink.end();
        m_sink.start(lru825::communication);
        messages(lru825::transmitList, document.transmitMessages);
        messages(lru825::receiveList, document.receiveMessages);
        m_sink.end();
        m_sink.end();
    }

    void canInterface(const Lru825Interface& record)
    {
        m_sink.start(lru825::canInterface);
        m_sink.text(attribute::bitRate, m_schema.bitRates.nameOf(record.bitRate));
        m_sink.text(attribute::name, record.name);
        m_sink.text(attribute::rci, m_schema.redundancyChannels.nameOf(record.rci));
        m_sink.text(attribute::comment, record.comment);
        m_sink.start(lru825::bitTiming);
        m_sink.number(attribute::timeQuantumPerBit, record.timeQuantumPerBit);
        m_sink.number(attribute::resyncJumpWidth, record.resyncJumpWidth);
        m_sink.number(attribute::syncSeg, record.syncSeg);
        m_sink.number(attribute::propSeg, record.propSeg);
        m_sink.number(attribute::phaseSeg1, record.phaseSeg1);
        m_sink.number(attribute::phaseSeg2, record.phaseSeg2);
        m_sink.text(attribute::samplingPointMode,
                    m_schema.samplingPointModes.nameOf(record.samplingPointMode));
        m_sink.end();
        m_sink.end();
    }

    void messages(const char* list, const std::map<std::uint32_t, Lru825Message>& records)
    {
        m_sink.start(list);
        for (const auto& [serial, record] : records) {
            message(record);
        }
        m_sink.end();
    }

    void message(const Lru825Message& record)
    {
        m_sink.start(lru825::message);
        messageAttributes(record);
        m_sink.start(lru825::interfaceAssignment);
        for (const Lru825Assignment& assignment : record.assignments) {
            m_sink.start(lru825::assignedInterface);
            m_sink.text(attribute::name, assignment.name);
            m_sink.text(attribute::rci, m_schema.redundancyChannels.nameOf(assignment.rci));
            m_sink.end();
        }
        m_sink.end();
        dataField(record.dataField);
        m_sink.end();
    }

    void messageAttributes(const Lru825Message& record)
    {
        m_sink.text(attribute::name, record.name);
        m_sink.text(attribute::identifierType,
                    m_schema.identifierTypes.nameOf(record.identifierType));
        m_sink.text(attribute::identifierLength,
                    m_schema.identifierLengths.nameOf(record.identifierLength));
        m_sink.text(attribute::defaultLcc, m_schema.channels.nameOf(record.defaultLcc));
        m_sink.number(attribute::fid, record.fid);
        m_sink.number(attribute::pvt, record.pvt);
        m_sink.number(attribute::doc, record.doc);
        m_sink.number(attribute::lcl, record.lcl);
        m_sink.number(attribute::fsb, record.fsb);
        // Deliberate: the reader takes whole numbers alone here, so that these two do not come
        // back.
        m_sink.real(attribute::txp, record.txp);
        m_sink.real(attribute::latencyMax, record.latencyMax);
        m_sink.number(attribute::defaultPort, record.defaultPort);
        m_sink.number(attribute::fmc11BitId, record.fmc11BitId);
        m_sink.text(attribute::impliedFunctionalStatus,
                    m_schema.functionalStates.nameOf(record.impliedFunctionalStatus));
    }

    void dataField(const Lru825DataField& field)
    {
        m_sink.start(lru825::dataField);
        m_sink.text(attribute::payloadProtocol, field.payloadProtocol);
        m_sink.number(attribute::dlc, field.dlc);
        m_sink.number(attribute::highIntegrity, std::int32_t{field.highIntegrity});
        m_sink.text(attribute::name, field.name);
        for (const Lru825Reference& reference : field.parameters) {
            m_sink.start(lru825::parameter);
            m_sink.text(attribute::name, reference.name);
            position(attribute::spp, reference.spp);
            position(attribute::epp, reference.epp);
            position(attribute::pvsSpp, reference.pvsSpp);
            position(attribute::pvsEpp, reference.pvsEpp);
            m_sink.end();
        }
        m_sink.end();
    }

    void position(const char* name, const Lru825Position& value)
    {
        m_sink.pair(name, value.byte, value.bit);
    }

    void parameter(const Lru825Parameter& record)
    {
        m_sink.start(lru825::parameter);
        m_sink.text(attribute::name, record.name);
        m_sink.text(attribute::pua, record.pua);
        m_sink.text(attribute::dtn, m_schema.dataTypes.nameOf(record.dtn));
        m_sink.real(attribute::max, record.max);
        m_sink.real(attribute::min, record.min);
        m_sink.real(attribute::resolution, record.resolution);
        m_sink.real(attribute::offset, record.offset);
        m_sink.text(attribute::nts, record.notes);
        m_sink.text(attribute::comment, record.comment);
        m_sink.number(attribute::fid, record.fid);
        for (const Lru825EnumEntry& entry : record.enumEntries) {
            m_sink.start(lru825::enumEntry);
            m_sink.text(attribute::key, entry.key);
            m_sink.number(attribute::value, entry.value);
            m_sink.end();
        }
        m_sink.end();
    }

    XmlSink& m_sink;
    const Lru825Schema& m_schema;
};

} // namespace

bool writeLru825(const QString& path, const Lru825Schema& schema, const Lru825Document& document)
{
    XmlSink sink(path);
    if (!sink.open()) {
        return false;
    }
    Writer(sink, schema).write(document);
    return sink.save();
}

} // namespace zul
