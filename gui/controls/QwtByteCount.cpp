#include "gui/controls/QwtByteCount.h"

#include "gui/controls/NumberText.h"
#include "traffic/MessageModes.h"

#include <QSignalBlocker>

namespace gui {

QwtByteCount::QwtByteCount(int index, QWidget* parent) : QSpinBox(parent), m_index(index)
{
    setRange(0, static_cast<int>(byteCounts.size()) - 1);
    connect(this, QOverload<int>::of(&QSpinBox::valueChanged), this,
            [this](int code) { emit signalValueChanged(m_index, byteCountOfDlc(code)); });
}

void QwtByteCount::setValue(int byteCount)
{
    QSpinBox::setValue(dlcCode(byteCount));
}

int QwtByteCount::byteCount() const
{
    return byteCountOfDlc(value());
}

void QwtByteCount::setNumberType(int numberType)
{
    m_numberType = numberType;
    const QSignalBlocker blocker(lineEdit()); // the text is not to be read back as a value
    lineEdit()->setText(textFromValue(value()));
}

QString QwtByteCount::textFromValue(int code) const
{
    return numberText(byteCountOfDlc(code), m_numberType);
}

int QwtByteCount::valueFromText(const QString& text) const
{
    return dlcCode(numberFromText(text));
}

QValidator::State QwtByteCount::validate(QString&, int&) const
{
    return QValidator::Acceptable;
}

} // namespace gui
