#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a CAN Statistic window.
struct StatisticSettings
{
    bool inputOn = true;
    std::int32_t displayType = 0; ///< the view shown
    std::uint32_t selectedId = 0; ///< identifier of the spreading view
    QString inputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("displayType", record.displayType);
        archive.field("selectedId", record.selectedId);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
    }
};

/// The settings of a CAN Statistic window.
class ObjectStatistic
    : public SettingsObject<ObjectStatistic, StatisticSettings, ObjectType::Statistic>
{
public:
    ObjectStatistic();
    ~ObjectStatistic() override;
};
