#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

/// The settings of a Receive window.
class ObjectReceive : public WindowObject
{
public:
    struct Settings
    {
        bool inputOn = true;
        std::int32_t displayMode =
            0; ///< 0 CAN, 3 CANaerospace, 4 ARINC 825 Raw, 6 ARINC 825 Profile
        std::int32_t numberType = 0; ///< 0 decimal, 1 hexadecimal
        QString inputInterface = allInterfacesName();
    };

    ObjectReceive();
    ~ObjectReceive() override;

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
