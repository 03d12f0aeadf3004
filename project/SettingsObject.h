#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

#include <memory>

/// A `WindowObject` whose `Mode` is one plain record.
///
/// `RecordSettings` is a struct with its defaults at the members, and a static template
/// `describe(archive, record)` that names every field once, in the order of the file: it serves
/// `RecordWriter` and `RecordReader` alike. `Derived` is the object's class.
template <typename Derived, typename RecordSettings, ObjectType objectType>
class SettingsObject : public WindowObject
{
public:
    using Settings = RecordSettings;

    static std::unique_ptr<Object> create() { return std::make_unique<Derived>(); }
    static ObjectTypeInfo typeInfo() { return makeObjectTypeInfo(objectType, &create); }

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }

protected:
    SettingsObject() : WindowObject(objectType) {}

    void writeMode(RecordWriter& writer) const override { Settings::describe(writer, m_settings); }
    void readMode(RecordReader& reader) override { Settings::describe(reader, m_settings); }

private:
    Settings m_settings;
};
