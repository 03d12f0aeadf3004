#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

/// The settings of a Node Service window.
class ObjectNodeService : public WindowObject
{
public:
    struct Settings
    {
        std::int32_t numberType = 0; ///< 0 decimal, 1 hexadecimal
        QString inputInterface = allInterfacesName();
        QString outputInterface = allInterfacesName();
    };

    ObjectNodeService();
    ~ObjectNodeService() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }

protected:
    bool hasFilter() const override;
    void writeMode(RecordWriter& writer) const override;
    void readMode(RecordReader& reader) override;

private:
    Settings m_settings;
};
