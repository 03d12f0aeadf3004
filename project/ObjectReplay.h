#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

/// The settings of a Replay window.
class ObjectReplay : public WindowObject
{
public:
    struct Settings
    {
        bool outputOn = true;
        std::int32_t displayMode =
            0; ///< 0 CAN, 3 CANaerospace, 4 ARINC 825 Raw, 6 ARINC 825 Profile
        std::int32_t numberType = 0; ///< stored only
        std::int32_t traceFormat = 0;
        QString inputInterface = allInterfacesName();
        QString outputInterface = allInterfacesName();
        bool autoRepeat = false;
    };

    ObjectReplay();
    ~ObjectReplay() override;

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
