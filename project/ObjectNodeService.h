#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a Node Service window.
struct NodeServiceSettings
{
    std::int32_t numberType = 0; ///< 0 decimal, 1 hexadecimal
    QString inputInterface = allInterfacesName();
    QString outputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("numberType", record.numberType);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
        archive.field("outputInterface", record.outputInterface, allInterfacesName());
    }
};

/// The settings of a Node Service window.
class ObjectNodeService
    : public SettingsObject<ObjectNodeService, NodeServiceSettings, ObjectType::NodeService>
{
public:
    ObjectNodeService();
    ~ObjectNodeService() override;

protected:
    bool hasFilter() const override;
};
