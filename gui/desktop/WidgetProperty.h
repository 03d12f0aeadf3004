#pragma once

#include "gui/desktop/RegisterFields.h"
#include "message/DeviceInfo.h"

#include <QFrame>

#include <string>
#include <vector>

class QComboBox;
class QGridLayout;
class QHBoxLayout;
class QLineEdit;
class QSpinBox;

/// The editor of one property of a device. Its kind decides what it looks like; a kind that is not
/// known shows the label alone.
class WidgetProperty : public QFrame
{
    Q_OBJECT

public:
    explicit WidgetProperty(DeviceProperty property, QWidget* parent = nullptr);

    /// Shows the value text, without a signal. Numbers that do not parse count as 0.
    void setValue(const std::string& value);
    const std::string& value() const { return m_value; }

signals:
    void signalChanged(const std::string& key, const std::string& value);

private slots:
    void slotText(const QString& text);
    void slotIndex(int index);
    void slotBtr();
    void slotNBTPPredef(int index);
    void slotNBTP();
    void slotNBTPValue(int value);
    void slotDBTPPredef(int index);
    void slotDBTP();
    void slotDBTPValue(int value);
    void slotTDCRPredef(int index);
    void slotTDCR();
    void slotTDCRValue(int value);

private:
    void build();
    void addChoices(QHBoxLayout& row, bool isEditable);
    void buildBtr(QHBoxLayout& row);
    void buildRegister(const gui::RegisterLayout& layout, QGridLayout& grid);
    void connectRegister();

    void showText();
    void showBtr();
    void showRegister();
    void showSpins(std::uint32_t value);
    void selectChoice(std::uint32_t value);

    void chooseRegister(int index);
    void typeRegister();
    void spinRegister();
    void change(const std::string& value);
    void changeNumber(int value);

    DeviceProperty m_property;
    std::string m_value;
    bool m_refreshing = false;

    QLineEdit* m_text = nullptr;
    QComboBox* m_choices = nullptr;
    QLineEdit* m_btr0 = nullptr;
    QLineEdit* m_btr1 = nullptr;
    QLineEdit* m_register = nullptr;
    std::vector<QSpinBox*> m_spins;
    std::vector<int> m_fieldValues; // of the register; a box cannot show those below its range
};
