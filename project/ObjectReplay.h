#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a Replay window.
struct ReplaySettings
{
    bool outputOn = true;
    std::int32_t displayMode = 0;                 ///< stored only
    std::int32_t numberType = 0;                  ///< stored only
    std::int32_t traceFormat = 0;                 ///< stored only
    QString inputInterface = allInterfacesName(); ///< stored only
    QString outputInterface = allInterfacesName();
    bool autoRepeat = false;

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("outputOn", record.outputOn);
        archive.field("displayMode", record.displayMode);
        archive.field("numberType", record.numberType);
        archive.field("traceFormat", record.traceFormat);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
        archive.field("outputInterface", record.outputInterface, allInterfacesName());
        archive.field("autoRepeat", record.autoRepeat);
    }
};

/// The settings of a Replay window.
class ObjectReplay : public SettingsObject<ObjectReplay, ReplaySettings, ObjectType::Replay>
{
public:
    ObjectReplay();
    ~ObjectReplay() override;
};
