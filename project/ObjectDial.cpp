#include "project/ObjectDial.h"

namespace {

const QString colorTag = QStringLiteral("Color");

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("inputOn", record.inputOn);
    archive.field("displayType", record.displayType);
    archive.field("name", record.name);
    archive.field("unit", record.unit);
    archive.field("minValue", record.minValue);
    archive.field("maxValue", record.maxValue);
    archive.field("precision", record.precision);
    archive.field("canId", record.canId);
    archive.field("dataType", record.dataType);
    archive.field("showProperties", record.showProperties);
    archive.field("endian", record.endian);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
}

template <typename Archive, typename Record>
void describeColor(Archive& archive, Record& color)
{
    archive.field("red", color.red);
    archive.field("green", color.green);
    archive.field("blue", color.blue);
}

} // namespace

ObjectDial::ObjectDial() : WindowObject(ObjectType::Dial) {}

ObjectDial::~ObjectDial() = default;

std::unique_ptr<Object> ObjectDial::create()
{
    return std::make_unique<ObjectDial>();
}

ObjectTypeInfo ObjectDial::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Dial, &ObjectDial::create);
}

void ObjectDial::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectDial::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}

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
