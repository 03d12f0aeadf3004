#pragma once

#include <QLineEdit>
#include <QSpinBox>

namespace gui {

/// A spin box for the length of a payload: it steps through the DLC codes 0 to 15 and shows the
/// byte counts that they stand for.
class QwtByteCount : public QSpinBox
{
    Q_OBJECT

public:
    explicit QwtByteCount(int index = 0, QWidget* parent = nullptr);

    /// Takes a byte count; one that no code stands for becomes 0.
    void setValue(int byteCount);
    /// The byte count shown.
    int byteCount() const;
    /// 0 shows "%d", 1 shows "0x%X", anything else nothing.
    void setNumberType(int numberType);

signals:
    void signalValueChanged(int index, int bytes);

protected:
    QString textFromValue(int code) const override;
    int valueFromText(const QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

private:
    int m_index;
    int m_numberType = 0;
};

} // namespace gui
