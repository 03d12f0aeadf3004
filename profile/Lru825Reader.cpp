#include "profile/Lru825Reader.h"

#include "profile/Lru825Names.h"
#include "profile/Lru825Schema.h"
#include "profile/ProfileChecks.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileReport.h"
#include "profile/XmlSource.h"

namespace zul {

namespace {

namespace attribute = lru825::attribute;

using Attributes = QXmlStreamAttributes;

double xmlReal(const Attributes& attributes, const char* name)
{
    return realNumber(xmlText(attributes, name));
}

Lru825Position position(const Attributes& attributes, const char* name)
{
    Lru825Position result;
    setPosition(xmlText(attributes, name), result.byte, result.bit);
    return result;
}

template <typename Record>
void append(std::map<std::uint32_t, Record>& records, const Record& record)
{
    records.emplace_hint(records.end(), record.serial, record);
}

class Reader
{
public:
    Reader(XmlSource& source, Lru825Schema& schema, Lru825Document& document)
        : m_source(source), m_schema(schema), m_document(document)
    {
    }

    void readRoot()
    {
        const Attributes attributes = m_source.attributes();
        m_document.id = xmlText(attributes, attribute::id);
        m_document.name = xmlText(attributes, attribute::name);
        m_document.major = xmlNumber(attributes, attribute::major);
        m_document.minor = xmlNumber(attributes, attribute::minor);
        m_document.version = xmlNumber(attributes, attribute::version);
        m_document.comment = xmlText(attributes, attribute::comment);
    }

    void readChildren()
    {
        eachChild([this] {
            if (m_source.isAt(lru825::lru)) {
                lru();
            } else if (m_source.isAt(lru825::parameterList)) {
                parameterList();
            } else {
                passOver();
            }
        });
    }

private:
    // Calls `take` at the start of each child; it has to go to the child's end.
    template <typename Take>
    void eachChild(const Take& take)
    {
        while (m_source.nextChild()) {
            take();
        }
    }

    // The same for the children of one name; the others are skipped.
    template <typename Take>
    void eachChild(const char* element, const Take& take)
    {
        eachChild([this, element, &take] {
            if (m_source.isAt(element)) {
                take();
            } else {
                passOver();
            }
        });
    }

    void passOver()
    {
        ++m_document.foreignElements;
        m_source.skip();
    }

    // To the end of an element that has no children.
    void end()
    {
        eachChild([this] { passOver(); });
    }

    void lru()
    {
        const Attributes attributes = m_source.attributes();
        m_document.lruName = xmlText(attributes, attribute::name);
        m_document.nodeId = xmlText(attributes, attribute::nodeId);
        m_document.nodeAddress = xmlText(attributes, attribute::nodeAddress);
        m_document.lruComment = xmlText(attributes, attribute::comment);
        eachChild([this] {
            if (m_source.isAt(lru825::interfaceList)) {
                eachChild(lru825::canInterface, [this] { canInterface(); });
            } else if (m_source.isAt(lru825::communication)) {
                communication();
            } else {
                passOver();
            }
        });
    }

    void canInterface()
    {
        const Attributes attributes = m_source.attributes();
        Lru825Interface made;
        made.bitRate = m_schema.bitRates.codeOf(xmlText(attributes, attribute::bitRate));
        made.name = xmlText(attributes, attribute::name);
        made.rci = m_schema.redundancyChannels.codeOf(xmlText(attributes, attribute::rci));
        made.comment = xmlText(attributes, attribute::comment);
        eachChild(lru825::bitTiming, [this, &made] { bitTiming(made); });
        append(m_document.interfaces, made);
    }

    void bitTiming(Lru825Interface& made)
    {
        const Attributes attributes = m_source.attributes();
        made.timeQuantumPerBit = xmlNumber(attributes, attribute::timeQuantumPerBit);
        made.resyncJumpWidth = xmlNumber(attributes, attribute::resyncJumpWidth);
        made.syncSeg = xmlNumber(attributes, attribute::syncSeg);
        made.propSeg = xmlNumber(attributes, attribute::propSeg);
        made.phaseSeg1 = xmlNumber(attributes, attribute::phaseSeg1);
        made.phaseSeg2 = xmlNumber(attributes, attribute::phaseSeg2);
        made.samplingPointMode =
            m_schema.samplingPointModes.codeOf(xmlText(attributes, attribute::samplingPointMode));
        end();
    }

    void communication()
    {
        eachChild([this] {
            if (m_source.isAt(lru825::transmitList)) {
                eachChild(lru825::message, [this] { message(m_document.transmitMessages); });
            } else if (m_source.isAt(lru825::receiveList)) {
                eachChild(lru825::message, [this] { message(m_document.receiveMessages); });
            } else {
                passOver();
            }
        });
    }

    void message(std::map<std::uint32_t, Lru825Message>& messages)
    {
        Lru825Message made;
        messageAttributes(made);
        eachChild([this, &made] {
            if (m_source.isAt(lru825::interfaceAssignment)) {
                eachChild(lru825::assignedInterface, [this, &made] { assignment(made); });
            } else if (m_source.isAt(lru825::dataField)) {
                dataField(made.dataField);
            } else {
                passOver();
            }
        });
        append(messages, made);
    }

    void messageAttributes(Lru825Message& made)
    {
        const Attributes attributes = m_source.attributes();
        made.name = xmlText(attributes, attribute::name);
        made.identifierType =
            m_schema.identifierTypes.codeOf(xmlText(attributes, attribute::identifierType));
        made.identifierLength =
            m_schema.identifierLengths.codeOf(xmlText(attributes, attribute::identifierLength));
        made.defaultLcc = m_schema.channels.codeOf(xmlText(attributes, attribute::defaultLcc));
        made.fid = xmlUnsigned(attributes, attribute::fid);
        made.pvt = xmlUnsigned(attributes, attribute::pvt);
        made.doc = xmlUnsigned(attributes, attribute::doc);
        made.lcl = xmlUnsigned(attributes, attribute::lcl);
        made.fsb = xmlUnsigned(attributes, attribute::fsb);
        made.txp = xmlNumber(attributes, attribute::txp);
        made.latencyMax = xmlNumber(attributes, attribute::latencyMax);
        made.defaultPort = xmlNumber(attributes, attribute::defaultPort);
        made.fmc11BitId = xmlUnsigned(attributes, attribute::fmc11BitId);
        made.impliedFunctionalStatus = m_schema.functionalStates.codeOf(
            xmlText(attributes, attribute::impliedFunctionalStatus));
    }

    void assignment(Lru825Message& owner)
    {
        const Attributes attributes = m_source.attributes();
        Lru825Assignment made;
        made.name = xmlText(attributes, attribute::name);
        made.rci = m_schema.redundancyChannels.codeOf(xmlText(attributes, attribute::rci));
        owner.assignments.push_back(made);
        end();
    }

    void dataField(Lru825DataField& field)
    {
        const Attributes attributes = m_source.attributes();
        field.payloadProtocol = xmlText(attributes, attribute::payloadProtocol);
        field.dlc = xmlNumber(attributes, attribute::dlc);
        field.highIntegrity = xmlNumber(attributes, attribute::highIntegrity) != 0;
        field.name = xmlText(attributes, attribute::name);
        eachChild(lru825::parameter, [this, &field] { reference(field); });
    }

    void reference(Lru825DataField& field)
    {
        const Attributes attributes = m_source.attributes();
        Lru825Reference made;
        made.name = xmlText(attributes, attribute::name);
        made.spp = position(attributes, attribute::spp);
        made.epp = position(attributes, attribute::epp);
        made.pvsSpp = position(attributes, attribute::pvsSpp);
        made.pvsEpp = position(attributes, attribute::pvsEpp);
        field.parameters.push_back(made);
        end();
    }

    void parameterList()
    {
        m_document.parameterListComment = xmlText(m_source.attributes(), attribute::comment);
        eachChild(lru825::parameter, [this] { parameter(); });
    }

    void parameter()
    {
        const Attributes attributes = m_source.attributes();
        Lru825Parameter made;
        made.name = xmlText(attributes, attribute::name);
        made.pua = xmlText(attributes, attribute::pua);
        made.dtn = m_schema.dataTypes.codeOf(xmlText(attributes, attribute::dtn));
        made.max = xmlReal(attributes, attribute::max);
        made.min = xmlReal(attributes, attribute::min);
        made.resolution = xmlReal(attributes, attribute::resolution);
        made.offset = xmlReal(attributes, attribute::offset);
        made.notes = xmlText(attributes, attribute::nts);
        made.comment = xmlText(attributes, attribute::comment);
        made.fid = xmlUnsigned(attributes, attribute::fid);
        eachChild(lru825::enumEntry, [this, &made] { enumEntry(made); });
        append(m_document.parameters, made);
    }

    void enumEntry(Lru825Parameter& owner)
    {
        const Attributes attributes = m_source.attributes();
        Lru825EnumEntry made;
        made.key = xmlText(attributes, attribute::key);
        made.value = xmlNumber(attributes, attribute::value);
        owner.enumEntries.push_back(made);
        end();
    }

    XmlSource& m_source;
    Lru825Schema& m_schema;
    Lru825Document& m_document;
};

} // namespace

bool readLru825(const QString& path, Lru825Schema& schema, Lru825Document& document)
{
    document = Lru825Document{};
    document.fileName = path;
    ProfileReport report(path, document.valid, document.result);
    XmlSource source;
    if (!source.open(path) || source.root() != QLatin1String(lru825::root)) {
        return false;
    }
    Reader reader(source, schema, document);
    reader.readRoot();
    checkProfileName(document.name, lineOfRoot, report);
    reader.readChildren();
    return source.isWhole();
}

} // namespace zul
