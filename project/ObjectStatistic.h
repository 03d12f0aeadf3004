#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

/// The settings of a CAN Statistic window.
class ObjectStatistic : public WindowObject
{
public:
    struct Settings
    {
        bool inputOn = true;
        std::int32_t displayType = 0; ///< the view shown
        std::uint32_t selectedId = 0; ///< identifier of the spreading view
        QString inputInterface = allInterfacesName();
    };

    ObjectStatistic();
    ~ObjectStatistic() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }

protected:
    void writeMode(RecordWriter& writer) const override;
    void readMode(RecordReader& reader) override;

private:
    Settings m_settings;
};
