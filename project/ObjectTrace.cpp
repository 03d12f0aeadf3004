#include "project/ObjectTrace.h"

namespace {

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("inputOn", record.inputOn);
    archive.field("displayMode", record.displayMode);
    archive.field("numberType", record.numberType);
    archive.field("traceFormat", record.traceFormat);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
    archive.field("outputInterface", record.outputInterface, allInterfacesName());
}

} // namespace

ObjectTrace::ObjectTrace() : WindowObject(ObjectType::Trace) {}

ObjectTrace::~ObjectTrace() = default;

std::unique_ptr<Object> ObjectTrace::create()
{
    return std::make_unique<ObjectTrace>();
}

ObjectTypeInfo ObjectTrace::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Trace, &ObjectTrace::create);
}

void ObjectTrace::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectTrace::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}
