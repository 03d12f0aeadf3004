#include "project/ObjectStatistic.h"

namespace {

template <typename Archive, typename Record>
void describe(Archive& archive, Record& record)
{
    archive.field("inputOn", record.inputOn);
    archive.field("displayType", record.displayType);
    archive.field("selectedId", record.selectedId);
    archive.field("inputInterface", record.inputInterface, allInterfacesName());
}

} // namespace

ObjectStatistic::ObjectStatistic() : WindowObject(ObjectType::Statistic) {}

ObjectStatistic::~ObjectStatistic() = default;

std::unique_ptr<Object> ObjectStatistic::create()
{
    return std::make_unique<ObjectStatistic>();
}

ObjectTypeInfo ObjectStatistic::typeInfo()
{
    return makeObjectTypeInfo(ObjectType::Statistic, &ObjectStatistic::create);
}

void ObjectStatistic::writeMode(RecordWriter& writer) const
{
    describe(writer, m_settings);
}

void ObjectStatistic::readMode(RecordReader& reader)
{
    describe(reader, m_settings);
}
