#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a Trace window.
struct TraceSettings
{
    bool inputOn = true;
    std::int32_t displayMode = 0; ///< of the screen: 0 CAN, 3 CANaerospace, 6 ARINC 825
    std::int32_t numberType = 0;  ///< 0 decimal, 1 hexadecimal
    std::int32_t traceFormat = 0; ///< of the text file: a `TraceFormat`
    QString inputInterface = allInterfacesName();
    QString outputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("displayMode", record.displayMode);
        archive.field("numberType", record.numberType);
        archive.field("traceFormat", record.traceFormat);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
        archive.field("outputInterface", record.outputInterface, allInterfacesName());
    }
};

/// The settings of a Trace window.
class ObjectTrace : public SettingsObject<ObjectTrace, TraceSettings, ObjectType::Trace>
{
public:
    ObjectTrace();
    ~ObjectTrace() override;
};
