#include "project/ObjectFunctionGen.h"

#include <algorithm>

namespace {

const QString generatorTag = QStringLiteral("Generator");
const QString signalTag = QStringLiteral("Signal");

template <typename Archive, typename Record>
void describeGenerator(Archive& archive, Record& generator)
{
    archive.field("nodeId", generator.nodeId);
    archive.field("nodeBaseId", generator.nodeBaseId);
    archive.field("baudrate", generator.baudrate);
}

template <typename Archive, typename Record>
void describeSignal(Archive& archive, Record& signal)
{
    archive.field("channel", signal.channel);
    archive.field("active", signal.active);
    archive.field("waveForm", signal.waveForm);
    archive.field("canId", signal.canId);
    archive.field("dataType", signal.dataType);
    archive.field("frequencyFactor", signal.frequencyFactor);
    archive.field("amplitudeFactor", signal.amplitudeFactor);
    archive.field("offsetFactor", signal.offsetFactor);
    archive.field("frequency", signal.frequency);
    archive.field("amplitude", signal.amplitude);
    archive.field("offset", signal.offset);
    archive.field("separation", signal.separation);
}

} // namespace

ObjectFunctionGen::ObjectFunctionGen()
{
    for (std::size_t i = 0; i < signalCount; ++i) {
        m_channels[i].channel = static_cast<std::int32_t>(i);
    }
}

ObjectFunctionGen::~ObjectFunctionGen() = default;

void ObjectFunctionGen::writeChildren(QDomDocument& document, QDomElement& element) const
{
    QDomElement generator = addElement(document, element, generatorTag);
    RecordWriter generatorWriter(document, generator);
    describeGenerator(generatorWriter, m_generator);
    for (const GeneratorChannel& signal : m_channels) {
        RecordWriter writer(document, addElement(document, generator, signalTag));
        describeSignal(writer, signal);
    }
}

void ObjectFunctionGen::readChild(const QDomElement& element)
{
    if (element.tagName() != generatorTag) {
        return;
    }
    RecordReader generatorReader(element);
    describeGenerator(generatorReader, m_generator);
    for (QDomElement child = element.firstChildElement(signalTag); !child.isNull();
         child = child.nextSiblingElement(signalTag)) {
        GeneratorChannel signal;
        RecordReader reader(child);
        describeSignal(reader, signal);
        signal.channel = std::clamp(signal.channel, 0, static_cast<std::int32_t>(signalCount) - 1);
        m_channels[static_cast<std::size_t>(signal.channel)] = signal;
    }
}
