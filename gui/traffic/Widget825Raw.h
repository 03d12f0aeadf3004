#pragma once

#include "gui/traffic/PayloadEditor.h"
#include "profile/Arinc825Id.h"

#include <vector>

class QCheckBox;
class QSpinBox;
class QStackedWidget;

namespace gui {
class QwtComboBox;
class QwtSpinBox;
} // namespace gui

/// Edits a message with the fields of an ARINC 825 identifier. Each control changes the bits of its
/// field, and the same bits come back under other names when the channel changes.
class Widget825Raw : public gui::PayloadEditor
{
    Q_OBJECT

public:
    explicit Widget825Raw(QWidget* parent = nullptr);
    ~Widget825Raw() override;

protected:
    /// A mode without 29 bits becomes that of a classic frame.
    void correct(SendMsg& message) const override;
    void applyNumberType(int numberType) override;
    void feedControls() override;

private slots:
    void slotMode(int mode);
    void slotLcc(int lcc);
    void slotSrcFid(int value);
    void slotFsb(int state);
    void slotLcl(int state);
    void slotPvt(int state);
    void slotDoc(int value);
    void slotRci(int value);
    void slotSrcAddress(int value);
    void slotDestAddress(int value);
    void slotSrcPort(int value);
    void slotDestPort(int value);
    void slotClientFid(int value);
    void slotSmt(int state);
    void slotServerFid(int value);
    void slotSid(int value);
    void slotDlc(int, int bytes);
    void slotData(int index, const QString& text);

private:
    using Slot = void (Widget825Raw::*)(int);

    /// A control that shows one field of the identifier.
    struct NumberField
    {
        gui::QwtSpinBox* control;
        zul::arinc825::IdField field;
    };
    struct FlagField
    {
        QCheckBox* control;
        zul::arinc825::IdField field;
    };

    /// Pages of the fields, in the order of the stack.
    enum Page { DataPage, AddressPage, ServicePage };

    void buildHead(QGridLayout* layout);
    QWidget* buildDataPage();
    QWidget* buildAddressPage();
    QWidget* buildServicePage();
    QGridLayout* makePage(QWidget* page);
    void addNumber(QGridLayout* layout, const char* label, const char* toolTip, int width,
                   zul::arinc825::IdField field, std::uint32_t maximum, Slot slot);
    /// Returns the label below it.
    QLabel* addFlag(QGridLayout* layout, const char* label, const char* toolTip,
                    zul::arinc825::IdField field, Slot slot);
    void addRci(QGridLayout* layout);
    void showPage();
    void setField(const zul::arinc825::IdField& field, int value);
    void setFlag(const zul::arinc825::IdField& field, int state);
    gui::QwtComboBox* m_mode = nullptr;
    gui::QwtComboBox* m_lcc = nullptr;
    QStackedWidget* m_pages = nullptr;
    std::vector<NumberField> m_numbers;
    std::vector<FlagField> m_flags;
    std::vector<gui::QwtComboBox*> m_rcis;
};
