#pragma once

#include <QLineEdit>

namespace gui {

/// A field for any finite number, with a decimal point and, if wanted, an exponent. What is typed
/// counts as soon as it is a number; a text that is none gives way to the last number when the
/// field is left.
class RealEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit RealEdit(QWidget* parent = nullptr);

    /// Shows a number, with as few digits as tell it from all others.
    void setValue(double value);
    double value() const { return m_value; }

signals:
    /// The user typed a number.
    void signalValue(double value);

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void takeText(const QString& text);

    double m_value = 0.0;
};

} // namespace gui
