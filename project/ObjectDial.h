#pragma once

#include "project/SettingsObject.h"

/// `Mode` of a Data Visualization window.
struct DialSettings
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

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("inputOn", record.inputOn);
        archive.field("displayType", record.displayType);
        archive.field("name", record.name);
        archive.field("unit", record.unit);
        archive.field("minValue", record.minValue);
        archive.field("maxValue", record.maxValue);
        archive.field("precision", record.precision);
        archive.field("canId", record.canId);
        archive.field("dataType", record.dataType);
        archive.field("showProperties", record.showProperties);
        archive.field("endian", record.endian);
        archive.field("inputInterface", record.inputInterface, allInterfacesName());
    }
};

/// The settings of a Data Visualization window.
class ObjectDial : public SettingsObject<ObjectDial, DialSettings, ObjectType::Dial>
{
public:
    /// Components, 0 to 255 in what the window writes.
    struct Color
    {
        std::int32_t red = 200;
        std::int32_t green = 0;
        std::int32_t blue = 0;
    };

    ObjectDial();
    ~ObjectDial() override;

    Color& color() { return m_color; }
    const Color& color() const { return m_color; }

protected:
    void writeChildren(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Color m_color;
};
