#pragma once

#include <QLineEdit>
#include <QSpinBox>

namespace gui {

/// A spin box that shows its value in decimal or hexadecimal, and reads both whatever it shows.
class QwtSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit QwtSpinBox(int index = 0, QWidget* parent = nullptr);

    /// 0 shows "%d", 1 shows "0x%X", anything else nothing.
    void setNumberType(int numberType);
    int numberType() const { return m_numberType; }

signals:
    void signalValueChanged(int index, int value);

protected:
    QString textFromValue(int value) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

private:
    int m_index;
    int m_numberType = 0;
};

} // namespace gui
