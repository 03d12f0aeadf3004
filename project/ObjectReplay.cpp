#include "project/ObjectReplay.h"

namespace {

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("outputOn", record.outputOn);
    archive.field("displayMode", record.displayMode);
    archive.field("numberType", record.numberType);
    archive.field("traceFormat", record.traceFormat);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
    archive.field("outputInterface", record.outputInterface, allInterfacesName());
    archive.field("autoRepeat", record.autoRepeat);
}

} // namespace

ObjectReplay::ObjectReplay() : WindowObject(ObjectType::Replay) {}

ObjectReplay::~ObjectReplay() = default;

std::unique_ptr<Object> ObjectReplay::create()
{
    return std::make_unique<ObjectReplay>();
}

ObjectTypeInfo ObjectReplay::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Replay, &ObjectReplay::create);
}

void ObjectReplay::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectReplay::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}
