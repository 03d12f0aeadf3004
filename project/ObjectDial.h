#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/WindowObject.h"

/// The settings of a Data Visualization window.
class ObjectDial : public WindowObject
{
public:
    struct Settings
    {
        bool inputOn = true;
        std::int32_t displayType = 0; ///< the form: lights, needle or digits
        QString name = QStringLiteral("NoName");
        QString unit;
        double minValue = 0.0;
        double maxValue = 1.0;
        std::int32_t precision = 2; ///< places after the point
        std::uint32_t canId = 0;
        std::int32_t dataType = 15;
        bool showProperties = false;
        std::int32_t endian = 1; ///< 0 little, 1 big
        QString inputInterface = allInterfacesName();
    };

    /// Components, 0 to 255 in what the window writes.
    struct Color
    {
        std::int32_t red = 200;
        std::int32_t green = 0;
        std::int32_t blue = 0;
    };

    ObjectDial();
    ~ObjectDial() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }
    Color& color() { return m_color; }
    const Color& color() const { return m_color; }

protected:
    void writeMode(RecordWriter& writer) const override;
    void readMode(RecordReader& reader) override;
    void writeChildren(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Settings m_settings;
    Color m_color;
};
