#include "gui/controls/QwtSpinBox.h"

#include "gui/controls/NumberText.h"

#include <QSignalBlocker>

#include <algorithm>

namespace gui {

QwtSpinBox::QwtSpinBox(int index, QWidget* parent) : QSpinBox(parent), m_index(index)
{
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int value) { emit signalValueChanged(m_index, value); });
}

void QwtSpinBox::setNumberType(int numberType)
{
    m_numberType = numberType;
    const QSignalBlocker blocker(lineEdit()); // the text is not to be read back as a value
    lineEdit()->setText(textFromValue(value()));
}

QString QwtSpinBox::textFromValue(int value) const
{
    return numberText(value, m_numberType);
}

int QwtSpinBox::valueFromText(const QString& text) const
{
    if (minimum() < 0) {
        return numberFromText(text);
    }
    // Without negative values "0x80000000" is a large number, and too large ones are the largest.
    const qlonglong value = wideNumberFromText(text);
    return static_cast<int>(std::clamp<qlonglong>(value, minimum(), maximum()));
}

QValidator::State QwtSpinBox::validate(QString&, int&) const
{
    return QValidator::Acceptable;
}

} // namespace gui
