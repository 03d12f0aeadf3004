#include "project/ObjectNodeService.h"

namespace {

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("numberType", record.numberType);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
    archive.field("outputInterface", record.outputInterface, allInterfacesName());
}

} // namespace

ObjectNodeService::ObjectNodeService() : WindowObject(ObjectType::NodeService) {}

ObjectNodeService::~ObjectNodeService() = default;

std::unique_ptr<Object> ObjectNodeService::create()
{
    return std::make_unique<ObjectNodeService>();
}

ObjectTypeInfo ObjectNodeService::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::NodeService, &ObjectNodeService::create);
}

bool ObjectNodeService::hasFilter() const
{
    return false;
}

void ObjectNodeService::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectNodeService::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}
