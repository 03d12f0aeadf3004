#pragma once

#include "project/ObjectTypeInfo.h"
#include "project/SendMsg.h"
#include "project/WindowObject.h"

#include <memory>
#include <vector>

/// The settings of a Transmit window, with its lines.
class ObjectTransmit : public WindowObject
{
public:
    struct Settings
    {
        bool outputOn = true;
        bool autoTx = false;
        std::int32_t displayMode = 0; ///< 0 CAN, 3 CANaerospace, 4 ARINC 825 Raw
        std::int32_t numberType = 0;  ///< 0 decimal, 1 hexadecimal
        QString outputInterface = allInterfacesName();
    };

    /// The lines stay where they are while the list changes, so that a table may point to them.
    using Lines = std::vector<std::unique_ptr<SendMsg>>;

    ObjectTransmit();
    ~ObjectTransmit() override;

    static std::unique_ptr<Object> create();
    static ObjectTypeInfo typeInfo();

    Settings& settings() { return m_settings; }
    const Settings& settings() const { return m_settings; }
    Lines& lines() { return m_lines; }
    const Lines& lines() const { return m_lines; }

protected:
    bool hasFilter() const override;
    void writeMode(RecordWriter& writer) const override;
    void readMode(RecordReader& reader) override;
    void writeChildren(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Settings m_settings;
    Lines m_lines;
};
