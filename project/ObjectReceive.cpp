#include "project/ObjectReceive.h"

namespace {

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("inputOn", record.inputOn);
    archive.field("displayMode", record.displayMode);
    archive.field("numberType", record.numberType);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
}

} // namespace

ObjectReceive::ObjectReceive() : WindowObject(ObjectType::Receive) {}

ObjectReceive::~ObjectReceive() = default;

std::unique_ptr<Object> ObjectReceive::create()
{
    return std::make_unique<ObjectReceive>();
}

ObjectTypeInfo ObjectReceive::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Receive, &ObjectReceive::create);
}

void ObjectReceive::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectReceive::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}
