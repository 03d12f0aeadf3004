#include "project/ObjectTransmit.h"

#include <algorithm>

namespace {

const QString listTag = QStringLiteral("MessageList");
const QString messageTag = QStringLiteral("Message");
const QString payloadAttribute = QStringLiteral("msg");

template <typename Archive, typename Record>
void describeLine(Archive& archive, Record& line)
{
    const SendMsg fresh;
    archive.field("name", line.name, fresh.name);
    archive.field("id", line.id);
    archive.field("length", line.byteCount);
    archive.field("type", line.mode);
    archive.field("rate", line.rate);
    archive.field("mode", line.running);
    archive.field("min", line.min, fresh.min);
    archive.field("max", line.max, fresh.max);
    archive.field("actual", line.actual, fresh.actual);
}

QString payloadText(const SendMsg& line)
{
    const auto count = static_cast<std::int32_t>(
        std::min(line.byteCount, static_cast<std::uint32_t>(zul::MessageData::size)));
    QString text;
    for (std::int32_t i = 0; i < count; ++i) {
        text += QString::asprintf("0x%x ", static_cast<unsigned>(line.data[i]));
    }
    return text;
}

} // namespace

ObjectTransmit::ObjectTransmit() = default;

ObjectTransmit::~ObjectTransmit() = default;

bool ObjectTransmit::hasFilter() const
{
    return false;
}

void ObjectTransmit::writeChildren(QDomDocument& document, QDomElement& element) const
{
    QDomElement list = addElement(document, element, listTag);
    for (const auto& line : m_lines) {
        RecordWriter writer(document, addElement(document, list, messageTag));
        describeLine(writer, *line);
        writer.field("msg", payloadText(*line));
    }
}

void ObjectTransmit::readChild(const QDomElement& element)
{
    if (element.tagName() != listTag) {
        return;
    }
    m_lines.clear();
    for (QDomElement child = element.firstChildElement(messageTag); !child.isNull();
         child = child.nextSiblingElement(messageTag)) {
        auto line = std::make_unique<SendMsg>();
        RecordReader reader(child);
        describeLine(reader, *line);
        constexpr int detectBase = 0;
        readPayloadText(child.attribute(payloadAttribute), detectBase, line->data);
        m_lines.push_back(std::move(line));
    }
}
