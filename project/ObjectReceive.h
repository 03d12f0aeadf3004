#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a Receive window.
struct ReceiveSettings
{
    bool inputOn = true;
    std::int32_t displayMode = 0; ///< 0 CAN, 3 CANaerospace, 4 ARINC 825 Raw, 6 ARINC 825 Profile
    std::int32_t numberType = 0;  ///< 0 decimal, 1 hexadecimal
    QString inputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("displayMode", record.displayMode);
        archive.field("numberType", record.numberType);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
    }
};

/// The settings of a Receive window.
class ObjectReceive : public SettingsObject<ObjectReceive, ReceiveSettings, ObjectType::Receive>
{
public:
    ObjectReceive();
    ~ObjectReceive() override;
};
