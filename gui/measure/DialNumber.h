#pragma once

#include <QLCDNumber>

namespace gui {

/// The numeric form of a dial: a seven-segment display on black. It is written only where its text
/// differs.
class DialNumber : public QLCDNumber
{
    Q_OBJECT

public:
    explicit DialNumber(QWidget* parent = nullptr);

    /// Of the digits.
    void setColor(const QColor& color);
    void showValue(double value, int precision);
    /// What was displayed last.
    const QString& text() const { return m_text; }

private:
    QString m_text;
};

} // namespace gui
