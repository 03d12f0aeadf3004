#pragma once

#include "project/SendMsg.h"
#include "project/SettingsObject.h"

#include <memory>
#include <vector>

/// `Mode` of a Transmit window.
struct TransmitSettings
{
    bool outputOn = true;
    bool autoTx = false;
    std::int32_t displayMode = 0; ///< 0 CAN, 3 CANaerospace, 4 ARINC 825 Raw
    std::int32_t numberType = 0;  ///< 0 decimal, 1 hexadecimal
    QString outputInterface = allInterfacesName();

    template <typename Archive, typename Record>
    static void describe(Archive& archive, Record& record)
    {
        archive.field("outputOn", record.outputOn);
        archive.field("autoTx", record.autoTx);
        archive.field("displayMode", record.displayMode);
        archive.field("numberType", record.numberType);
        archive.field("outputInterface", record.outputInterface, allInterfacesName());
    }
};

/// The settings of a Transmit window, with its lines.
class ObjectTransmit : public SettingsObject<ObjectTransmit, TransmitSettings, ObjectType::Transmit>
{
public:
    /// The lines stay where they are while the list changes, so that a table may point to them.
    using Lines = std::vector<std::unique_ptr<SendMsg>>;

    ObjectTransmit();
    ~ObjectTransmit() override;

    Lines& lines() { return m_lines; }
    const Lines& lines() const { return m_lines; }

protected:
    bool hasFilter() const override;
    void writeChildren(QDomDocument& document, QDomElement& element) const override;
    void readChild(const QDomElement& element) override;

private:
    Lines m_lines;
};
