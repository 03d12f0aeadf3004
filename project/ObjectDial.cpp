#include "project/ObjectDial.h"

namespace {

const QString colorTag = QStringLiteral("Color");

template <typename Archive, typename Record>
void describeColor(Archive& archive, Record& color)
{
    archive.field("red", color.red);
    archive.field("green", color.green);
    archive.field("blue", color.blue);
}

} // namespace

ObjectDial::ObjectDial() = default;

ObjectDial::~ObjectDial() = default;

void ObjectDial::writeChildren(QDomDocument& document, QDomElement& element) const
{
    RecordWriter writer(document, addElement(document, element, colorTag));
    describeColor(writer, m_color);
}

void ObjectDial::readChild(const QDomElement& element)
{
    if (element.tagName() == colorTag) {
        RecordReader reader(element);
        describeColor(reader, m_color);
    }
}
